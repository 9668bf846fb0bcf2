#pragma once

#include <memory>
#include <string>

#include "engines/sqlite/sqlite_connection.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::support {

/// A database file with the empty tables, in a temporary folder of its own.
class TemporaryDatabase {
 public:
  TemporaryDatabase();

  std::string path() const { return folder_.file("prueba.db"); }
  const std::shared_ptr<sqlite::SqliteConnection>& connection() const { return connection_; }

 private:
  TemporaryFolder folder_;
  std::shared_ptr<sqlite::SqliteConnection> connection_;
};

}  // namespace korvantes::support
