#include "tests/support/rows.h"

namespace korvantes::support {

std::string shown(const ado::Variant& value) {
  using Kind = ado::VariantKind;
  switch (value.kind()) {
    case Kind::Null:
      return "NULL";
    case Kind::Boolean:
      return value.boolean() ? "True" : "False";
    case Kind::Whole:
      return std::to_string(value.whole());
    case Kind::Decimal:
      return value.decimal().text();
    case Kind::Date:
      return value.date().dayFirst();
    case Kind::Text:
      return value.text();
    case Kind::Bytes:
      return std::to_string(value.bytes().size()) + " bytes";
    case Kind::Double:
      break;
  }
  return "a double: " + std::to_string(value.asDouble());  // no engine gives one
}

std::vector<std::string> rowsOf(const ado::Recordset& rows) {
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
    std::string line;
    for (std::size_t field = 0; field < rows.definitions().size(); ++field)
      line += (field == 0 ? "" : "|") + shown(rows.cell(row, field));
    lines.push_back(line);
  }
  return lines;
}

}  // namespace korvantes::support
