#include "engines/tsql/quoted_names.h"
#include "engines/tsql/sqlite_writer.h"

namespace korvantes::tsql {

namespace {

const char* storageOf(const Type& type) {
  switch (type.kind) {
    case TypeKind::Date:
      return "TEXT";
    case TypeKind::VarChar:
    case TypeKind::Char:
      return "TEXT COLLATE KV_TEXT";
    case TypeKind::VarBinary:
      return "BLOB";
    default:
      return "INTEGER";
  }
}

std::string listOf(const std::vector<std::string>& names) {
  std::string list;
  for (const auto& name : names) list += (list.empty() ? "" : ", ") + quotedName(name);
  return "(" + list + ")";
}

std::string columnOf(const ColumnDefinition& column, const TableDefinition& table) {
  std::string text = quotedName(column.name) + " " + storageOf(column.type);
  if (!column.nullable) text += " NOT NULL";
  const bool key = table.primaryKey.size() == 1 && table.primaryKey.front() == column.name;
  if (key) text += column.identity ? " PRIMARY KEY AUTOINCREMENT" : " PRIMARY KEY";
  return text;
}

}  // namespace

std::string writeSqlite(const typed::CreateTable& create) {
  const auto& table = create.table;
  std::string text = "CREATE TABLE " + qualifiedName(table.database, table.name) + " (";
  std::string separator;
  for (const auto& column : table.columns) {
    text += separator + columnOf(column, table);
    separator = ", ";
  }
  if (table.primaryKey.size() > 1) text += ", PRIMARY KEY " + listOf(table.primaryKey);
  for (const auto& key : create.uniqueKeys) text += ", UNIQUE " + listOf(key);
  return text + ") STRICT";
}

std::string writeSqlite(const typed::CreateIndex& create) {
  // On the server two tables may have indexes of the same name; in SQLite names are unique in a
  // database.
  const std::string name = qualifiedName(create.database, create.table + "." + create.name);
  std::string text = create.unique ? "CREATE UNIQUE INDEX " : "CREATE INDEX ";
  text += name + " ON " + quotedName(create.table) + " (";
  std::string separator;
  for (const auto& [column, descending] : create.columns) {
    text += separator + quotedName(column) + (descending ? " DESC" : "");
    separator = ", ";
  }
  return text + ")";
}

std::string writeSqlite(const typed::DropTable& drop) {
  return "DROP TABLE " + qualifiedName(drop.database, drop.table);
}

}  // namespace korvantes::tsql
