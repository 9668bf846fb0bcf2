#include "sample/rows.h"

#include <algorithm>
#include <string>

#include "outside/plindor/lista_campos.h"

namespace korvantes::sample {
namespace {

constexpr std::size_t kRowsOfStatement = 50;

/// A value as written in a statement; texts and dates are quoted by the common function.
std::string literal(const ado::Variant& value) {
  using Kind = ado::Variant::Kind;
  using plindor::ListaCampos;
  ListaCampos field;
  switch (value.kind()) {
    case Kind::Null:
      return "NULL";
    case Kind::Whole:
      return std::to_string(value.whole());
    case Kind::Decimal:
      return value.decimal().text();
    case Kind::Date:
      field.AgregaCampo("valor", ListaCampos::Fecha, value.date().dayFirst(), 0);
      return field.campos().front().valor;
    default:
      field.AgregaCampo("valor", ListaCampos::Texto, value.text(), 0);
      return field.campos().front().valor;
  }
}

std::string tuple(const Row& row) {
  std::string text = "(";
  for (const ado::Variant& value : row) {
    if (text.size() > 1) text += ", ";
    text += literal(value);
  }
  return text + ")";
}

}  // namespace

void insertRows(ado::Connection& connection, std::string_view table, std::string_view columns,
                const std::vector<Row>& rows) {
  const std::string head =
      "INSERT INTO " + std::string(table) + " (" + std::string(columns) + ") VALUES ";
  for (std::size_t first = 0; first < rows.size(); first += kRowsOfStatement) {
    const std::size_t end = std::min(first + kRowsOfStatement, rows.size());
    std::string statement = head;
    for (std::size_t row = first; row < end; ++row)
      statement += (row == first ? "" : ", ") + tuple(rows[row]);
    connection.Execute(statement);
  }
}

ado::Variant decimalOrNull(std::optional<std::int64_t> units, int scale) {
  return units ? ado::Variant(ado::Decimal(*units, scale)) : ado::Variant();
}

}  // namespace korvantes::sample
