#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "engines/sqlite/database.h"
#include "engines/tsql/catalogue.h"

namespace korvantes::sqlite {

/// The declarations of the tables, kept in a table (kCatalogueTable) of the file that holds the
/// tables: SQLite itself has no types money and varchar(5).
class CatalogueStore {
 public:
  explicit CatalogueStore(Database& database) : database_(&database) {}

  /// The tables of both files. Throws Error if a stored declaration cannot be read.
  tsql::Catalogue load();
  /// Stores the CREATE TABLE text of a table.
  void keep(const tsql::TableDefinition& table, std::string_view text);
  void remove(const std::string& database, const std::string& table);

  /// A value that changes whenever any connection declares something in either file.
  std::pair<std::int64_t, std::int64_t> version();

 private:
  Database* database_;
};

/// Makes several statements atomic: the destructor undoes them unless release() was called.
class Savepoint {
 public:
  explicit Savepoint(Database& database);
  ~Savepoint();
  Savepoint(const Savepoint&) = delete;
  Savepoint& operator=(const Savepoint&) = delete;
  void release();

 private:
  Database* database_;
  bool outermost_;
  bool released_ = false;
};

}  // namespace korvantes::sqlite
