#include "scripts/printed_values.h"

#include <ostream>

#include "runtime/screen/conversions.h"

namespace korvantes::scripts {
namespace {

/// Numbers in results have a point, regardless of the regional settings.
const screen::Regional kPlainNumbers{"", '.', ','};

std::string hexadecimal(const ado::Bytes& bytes) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text = "0x";
  text.reserve(2 + 2 * bytes.size());
  for (const std::byte byte : bytes) {
    text += kDigits[std::to_integer<unsigned>(byte >> 4U)];
    text += kDigits[std::to_integer<unsigned>(byte & std::byte{0x0F})];
  }
  return text;
}

void printRows(const ado::Recordset& rows, std::ostream& out) {
  const auto& fields = rows.definitions();
  for (std::size_t field = 0; field < fields.size(); ++field)
    out << (field == 0 ? "" : "\t") << escapedText(fields[field].name);
  out << '\n';
  for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
    for (std::size_t field = 0; field < fields.size(); ++field)
      out << (field == 0 ? "" : "\t") << printedValue(rows.cell(row, field));
    out << '\n';
  }
}

}  // namespace

std::string escapedText(std::string_view text) {
  std::string escaped;
  escaped.reserve(text.size());
  for (const char character : text) {
    switch (character) {
      case '\t':
        escaped += "\\t";
        break;
      case '\n':
        escaped += "\\n";
        break;
      case '\r':
        escaped += "\\r";
        break;
      case '\\':
        escaped += "\\\\";
        break;
      default:
        escaped += character;
    }
  }
  return escaped;
}

std::string printedValue(const ado::Variant& value) {
  switch (value.kind()) {
    case ado::VariantKind::Null:
      return "NULL";
    case ado::VariantKind::Boolean:
      return value.boolean() ? "1" : "0";
    case ado::VariantKind::Whole:
      return std::to_string(value.whole());
    case ado::VariantKind::Double:
      return screen::CStr(value.asDouble(), kPlainNumbers);
    case ado::VariantKind::Decimal:
      return value.decimal().text();
    case ado::VariantKind::Date:
      return value.date().dayFirst();
    case ado::VariantKind::Text:
      return escapedText(value.text());
    case ado::VariantKind::Bytes:
      return hexadecimal(value.bytes());
  }
  return {};
}

void printStatement(ado::Connection& connection, std::string_view statement, std::ostream& out) {
  long long rowsAffected = 0;
  const ado::Recordset rows = connection.Execute(statement, &rowsAffected);
  if (rows.isOpen())
    printRows(rows, out);
  else
    out << rowsAffected << " filas\n";
}

}  // namespace korvantes::scripts
