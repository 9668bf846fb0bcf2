#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "runtime/ado/connection.h"

namespace korvantes::host {

/// An open database.
struct Database {
  std::shared_ptr<ado::Connection> connection;
  /// Whether a table is declared; the database is empty for the company's own, else "Vespara".
  std::function<bool(std::string_view database, std::string_view table)> hasTable;
  std::string name;  ///< for the user: the file
};

enum class OpenMode {
  Existing,  ///< a file that is missing or without tables is a failure
  Create     ///< such a file is accepted, and created if it is missing
};

/// Opens the database that a URL names: "sqlite:PATH" (with the shared one in PATH.vespara) or
/// "odbc:CONNECTION STRING". Without a URL it is the sample database in the user's data folder; it
/// is created on first use, and completed if it was only half created.
/// Throws Failure or ado::Error. No message contains a connection string, as it may hold a
/// password.
Database openDatabase(const std::optional<std::string>& url);

/// Opens a database file. Throws as above.
Database openFile(const std::string& path, OpenMode mode = OpenMode::Existing);

/// The path of the file that a URL names, or of the sample database, whose folder is created.
/// Throws as above.
std::string filePathOf(const std::optional<std::string>& url);

}  // namespace korvantes::host
