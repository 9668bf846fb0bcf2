#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/types.h"

namespace korvantes::tsql {

/// The database that several applications share, the only name allowed before dbo.
constexpr std::string_view kSharedDatabase = "Vespara";

struct ColumnDefinition {
  std::string name;
  Type type;
  bool nullable = true;
  bool identity = false;  ///< numbered by the database; a number is never used twice
};

struct TableDefinition {
  std::string database;  ///< empty for the company's own database, else as declared ("Vespara")
  std::string name;
  std::vector<ColumnDefinition> columns;
  std::vector<std::string> primaryKey;

  /// Position of a column by name, case-insensitive.
  std::optional<std::size_t> find(std::string_view column) const;
};

/// The tables a statement may name: what CREATE TABLE statements declared. Names are
/// case-insensitive.
class Catalogue {
 public:
  const TableDefinition* find(std::string_view database, std::string_view table) const;
  /// Throws ado::Error if the table exists already.
  void add(TableDefinition table);
  void remove(std::string_view database, std::string_view table);

 private:
  std::vector<TableDefinition> tables_;
};

}  // namespace korvantes::tsql
