#include "engines/sqlite/row_reader.h"

#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace korvantes::sqlite {

namespace {

std::string_view textAt(sqlite3_stmt* row, int column) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(row, column));
  return {text, static_cast<std::size_t>(sqlite3_column_bytes(row, column))};
}

ado::Bytes bytesAt(sqlite3_stmt* row, int column) {
  const auto* bytes = static_cast<const std::byte*>(sqlite3_column_blob(row, column));
  return {bytes, bytes + sqlite3_column_bytes(row, column)};
}

bool isText(const ado::Variant* value, std::string_view text) {
  return value != nullptr && value->kind() == ado::Variant::Kind::Text && value->text() == text;
}

/// `above` is the value of the same column in the row before, if there is one.
ado::Variant valueAt(sqlite3_stmt* row, int column, const tsql::Type& type,
                     const ado::Variant* above) {
  if (sqlite3_column_type(row, column) == SQLITE_NULL) return {};
  switch (type.kind) {
    case tsql::TypeKind::Bit:
      return sqlite3_column_int64(row, column) != 0;
    case tsql::TypeKind::Int:
      return std::int64_t{sqlite3_column_int64(row, column)};
    case tsql::TypeKind::Money:
      return ado::Decimal::money(sqlite3_column_int64(row, column));
    case tsql::TypeKind::Decimal:
      return ado::Decimal(sqlite3_column_int64(row, column), type.scale);
    case tsql::TypeKind::Date: {
      const auto date = ado::Date::parseIso(textAt(row, column));
      if (!date)
        throw ado::Error(ado::ErrorKind::Damaged, SQLITE_MISMATCH,
                         "La base de datos contiene una fecha no válida");
      return *date;
    }
    case tsql::TypeKind::VarChar:
    case tsql::TypeKind::Char: {
      const std::string_view text = textAt(row, column);
      if (isText(above, text)) return *above;
      return std::string(text);
    }
    case tsql::TypeKind::VarBinary:
      return bytesAt(row, column);
    case tsql::TypeKind::Null:
      break;
  }
  return {};
}

}  // namespace

ado::Recordset readRows(Statement& statement, const tsql::CompiledStatement& compiled,
                        std::string_view subject, std::shared_ptr<ado::RowWriter> writer) {
  constexpr std::size_t kExpectedRows = 8;
  const auto columns = static_cast<int>(compiled.types.size());
  std::vector<ado::Variant> cells;
  while (statement.step(subject)) {
    if (cells.empty()) cells.reserve(compiled.types.size() * kExpectedRows);
    for (int column = 0; column < columns; ++column) {
      const auto& type = compiled.types[static_cast<std::size_t>(column)];
      // Values that joins repeat from row to row (mostly names) are stored once.
      const ado::Variant* above = cells.size() < compiled.types.size()
                                      ? nullptr
                                      : &cells[cells.size() - compiled.types.size()];
      cells.push_back(valueAt(statement.raw(), column, type, above));
    }
  }
  return {compiled.fields, std::move(cells), std::move(writer)};
}

}  // namespace korvantes::sqlite
