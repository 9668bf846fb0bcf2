#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "runtime/ado/connection.h"

namespace korvantes::host {

/// An open database.
struct Database {
  std::shared_ptr<ado::Connection> connection;
  std::function<bool()> hasTables;
  std::string name;  ///< for the user: the file
};

enum class OpenMode {
  Existing,  ///< a missing file is a failure
  Create     ///< a missing file, and the folder of the sample database, are made
};

/// Opens the database that a URL names: "sqlite:PATH" (what is shared lies in PATH.vespara) or
/// "odbc:CONNECTION STRING". Without a URL it is the sample database under the user's data folder,
/// which is made, with its data, on first use; in mode Create it is merely opened.
/// Throws Failure or ado::Error. No message holds a connection string, as it may hold a password.
Database openDatabase(const std::optional<std::string>& url, OpenMode mode);

/// Opens a database file, with the failures told as above.
Database openFile(const std::string& path, OpenMode mode);

/// Makes the tables, and then calls `fill`, in one transaction: both stay or nothing does. False,
/// with nothing changed, where there are tables already. Throws what the statements throw.
bool createTables(const Database& database,
                  const std::function<void(ado::Connection&)>& fill = nullptr);

}  // namespace korvantes::host
