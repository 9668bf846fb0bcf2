#include "engines/sqlite/row_update.h"

#include "engines/tsql/quoted_names.h"
#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"

namespace korvantes::sqlite {

namespace {

constexpr long kRowGone = -2147217864;  // adErrRowNotFound as ADO reports it
constexpr long kCannotUpdate = 3251;

[[noreturn]] void doesNotFit(const tsql::ColumnDefinition& column) {
  throw ado::Error(
      ado::ErrorKind::Overflow, kCannotUpdate,
      "El valor no cabe en la columna " + column.name + " (" + nameOf(column.type) + ")");
}

std::int64_t unitsFor(const tsql::ColumnDefinition& column, const ado::Variant& value) {
  const int scale = column.type.scale;
  std::int64_t units = 0;
  if (value.kind() == ado::VariantKind::Double) {
    units = ado::decimalFromDouble(value.asDouble(), scale).units();
  } else if (value.kind() == ado::VariantKind::Decimal) {
    units = value.decimal().rescaled(scale).units();
  } else {
    units = ado::Decimal(value.asLong(), 0).rescaled(scale).units();
  }
  if (column.type.kind != tsql::TypeKind::Decimal) return units;
  // A column of 19 or more digits takes any 64-bit number.
  if (column.type.precision > ado::Decimal::kMaxScale) return units;
  const std::int64_t limit = ado::Decimal(1, 0).rescaled(column.type.precision).units();
  if (units >= limit || units <= -limit) doesNotFit(column);
  return units;
}

tsql::StoredValue storedValue(const tsql::ColumnDefinition& column, const ado::Variant& value) {
  if (value.isNull()) return {};
  switch (column.type.kind) {
    case tsql::TypeKind::Bit:
      return std::int64_t{value.asBoolean() ? 1 : 0};
    case tsql::TypeKind::Int:
      return std::int64_t{value.asLong()};
    case tsql::TypeKind::Money:
    case tsql::TypeKind::Decimal:
      return unitsFor(column, value);
    case tsql::TypeKind::Date:
      return value.date().iso();
    case tsql::TypeKind::VarBinary: {
      const auto limit = static_cast<std::size_t>(column.type.length);
      if (limit > 0 && value.bytes().size() > limit) doesNotFit(column);
      return value.bytes();
    }
    case tsql::TypeKind::VarChar:
      return value.text();
    case tsql::TypeKind::Char: {
      std::string text = value.text();
      const auto length = static_cast<std::size_t>(column.type.length);
      const std::size_t has = ado::characterCount(text);
      if (has < length) text.append(length - has, ' ');
      return text;
    }
    case tsql::TypeKind::Null:
      break;
  }
  return {};
}

const tsql::ColumnDefinition& columnNamed(const tsql::TableDefinition& table,
                                          const std::string& name) {
  const auto position = table.find(name);
  if (!position) {
    throw ado::Error(ado::ErrorKind::Syntax, kCannotUpdate,
                     "El campo " + name + " no es una columna de " + table.name);
  }
  return table.columns[*position];
}

}  // namespace

RowUpdate::RowUpdate(std::weak_ptr<Session> session, tsql::TableDefinition table)
    : session_(std::move(session)), table_(std::move(table)) {}

void RowUpdate::rememberKey(const ado::Recordset& rows) {
  for (const std::string& name : table_.primaryKey) {
    const ado::Field field = rows.Fields(name);
    if (rows.RecordCount() > 0)
      key_.push_back(storedValue(columnNamed(table_, name), field.Value()));
  }
}

void RowUpdate::write(const std::vector<std::pair<std::string, ado::Variant>>& changes) {
  if (changes.empty()) return;
  const auto session = session_.lock();
  if (!session)
    throw ado::Error(ado::ErrorKind::ConnectionLost, kCannotUpdate,
                     "La conexión con la base de datos está cerrada");
  const std::string subject = "UPDATE " + table_.name;
  session->transaction.requireWritable(subject);

  std::vector<tsql::StoredValue> values;
  std::string assignments;
  for (const auto& [name, value] : changes) {
    const auto& column = columnNamed(table_, name);
    if (column.identity) {
      throw ado::Error(ado::ErrorKind::Constraint, kCannotUpdate,
                       "La columna " + column.name + " la numera la base de datos");
    }
    values.push_back(storedValue(column, value));
    assignments += (assignments.empty() ? "" : ", ") + tsql::quotedName(column.name) + " = ?" +
                   std::to_string(values.size());
  }
  std::string condition;
  for (std::size_t i = 0; i < key_.size(); ++i) {
    values.push_back(key_[i]);
    condition += (i == 0 ? "" : " AND ") +
                 tsql::quotedName(columnNamed(table_, table_.primaryKey[i]).name) + " = ?" +
                 std::to_string(values.size());
  }
  const std::string schema = table_.database.empty() ? "main" : table_.database;
  Statement update(session->database,
                   "UPDATE " + tsql::qualifiedName(schema, table_.name) + " SET " + assignments +
                       " WHERE " + condition,
                   subject);
  for (std::size_t i = 0; i < values.size(); ++i) update.bind(static_cast<int>(i) + 1, values[i]);
  update.step(subject);
  if (sqlite3_changes64(session->database.raw()) == 0) {
    throw ado::Error(ado::ErrorKind::Gone, kRowGone,
                     "El registro ya no existe: otro usuario lo ha borrado", subject);
  }
  // From now on the row is found by its changed key.
  for (std::size_t k = 0; k < key_.size(); ++k) {
    for (std::size_t i = 0; i < changes.size(); ++i) {
      if (ado::sameName(changes[i].first, table_.primaryKey[k])) key_[k] = values[i];
    }
  }
}

}  // namespace korvantes::sqlite
