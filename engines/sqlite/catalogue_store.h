#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>

#include "engines/sqlite/database.h"
#include "engines/tsql/catalogue.h"

namespace korvantes::sqlite {

/// The declarations of the tables, kept in the table korvantes_schema of the file that holds the
/// tables: SQLite itself remembers no money and no varchar(5).
class CatalogueStore {
 public:
  explicit CatalogueStore(Database& database) : database_(&database) {}

  /// The tables of both files. Throws Error when a kept declaration cannot be read.
  tsql::Catalogue load();
  /// Keeps the CREATE TABLE text of a table.
  void keep(const tsql::TableDefinition& table, std::string_view text);
  void remove(const std::string& database, const std::string& table);

  /// Changes with every declaration that any connection makes, in either file.
  std::pair<std::int64_t, std::int64_t> version();

  /// True when either file holds a table, of ours or of somebody else's.
  bool anyTable();

 private:
  std::int64_t number(const std::string& text);

  Database* database_;
};

/// Makes several statements one: undone together unless release() was reached.
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
