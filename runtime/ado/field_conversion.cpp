#include <array>
#include <charconv>

#include "runtime/ado/error.h"
#include "runtime/ado/recordset_rows.h"
#include "runtime/ado/utf8.h"

namespace korvantes::ado {

namespace {

[[noreturn]] void refuse(const FieldDefinition& field) {
  throw ConversionError("El valor no es adecuado para el campo " + field.name);
}

/// An exact number at the field's scale.
Decimal exactValue(const FieldDefinition& field, const Variant& value) {
  switch (value.kind()) {
    case Variant::Kind::Decimal:
      return value.decimal().rescaled(field.scale);
    case Variant::Kind::Double:
      return decimalFromDouble(value.asDouble(), field.scale);
    case Variant::Kind::Whole:
      return Decimal(value.whole(), 0).rescaled(field.scale);
    case Variant::Kind::Boolean:
      return Decimal(value.boolean() ? 1 : 0, 0).rescaled(field.scale);
    default:
      refuse(field);
  }
}

std::string textOf(const FieldDefinition& field, const Variant& value) {
  switch (value.kind()) {
    case Variant::Kind::Text:
      return value.text();
    case Variant::Kind::Whole:
      return std::to_string(value.whole());
    case Variant::Kind::Boolean:
      return value.boolean() ? "1" : "0";
    case Variant::Kind::Decimal:
      return value.decimal().text();
    case Variant::Kind::Date:
      return value.date().dayFirst();
    case Variant::Kind::Double: {
      constexpr int kDigits = 15;
      std::array<char, 40> digits{};
      const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(),
                                            value.asDouble(), std::chars_format::general, kDigits)
                                  .ptr;
      return {digits.data(), static_cast<std::size_t>(end - digits.data())};
    }
    default:
      refuse(field);
  }
}

}  // namespace

Variant convertedTo(const FieldDefinition& field, Variant value) {
  if (value.isNull()) return value;
  switch (field.type) {
    case FieldType::Integer:
      return static_cast<int>(value.asLong());
    case FieldType::Double:
      return value.asDouble();
    case FieldType::Boolean:
      return value.asBoolean();
    case FieldType::Currency:
    case FieldType::Numeric:
      return exactValue(field, value);
    case FieldType::Date:
      return value.date();
    case FieldType::LongVarBinary:
      return value.bytes();
    case FieldType::VarChar:
      break;
  }
  const auto most = static_cast<std::size_t>(field.size);
  const bool isText = value.kind() == Variant::Kind::Text;
  // A text that fits stays shared with its copies. Every character takes at least one byte.
  if (isText && (most == 0 || value.text().size() <= most)) return value;
  std::string text = textOf(field, value);
  if (most > 0) text.resize(firstCharacters(text, most).size());
  return text;
}

}  // namespace korvantes::ado
