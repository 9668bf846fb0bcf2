#pragma once

#include <filesystem>
#include <memory>
#include <string>

#include "engines/sqlite/sqlite_connection.h"

namespace korvantes::support {

/// A database file with the empty tables, in a folder of its own that goes with it.
class TemporaryDatabase {
 public:
  TemporaryDatabase();
  ~TemporaryDatabase();
  TemporaryDatabase(const TemporaryDatabase&) = delete;
  TemporaryDatabase& operator=(const TemporaryDatabase&) = delete;

  std::string path() const { return (folder_ / "prueba.db").string(); }
  const std::shared_ptr<sqlite::SqliteConnection>& connection() const { return connection_; }

 private:
  std::filesystem::path folder_;
  std::shared_ptr<sqlite::SqliteConnection> connection_;
};

}  // namespace korvantes::support
