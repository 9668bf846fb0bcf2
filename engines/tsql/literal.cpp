#include "engines/tsql/literal.h"

#include <algorithm>

#include "engines/tsql/runtime.h"
#include "engines/tsql/text_values.h"
#include "engines/tsql/wide.h"
#include "runtime/ado/utf8.h"

namespace korvantes::tsql {

namespace {

int decimalsOf(std::string_view raw) {
  const auto point = raw.find('.');
  return point == std::string_view::npos ? 0 : static_cast<int>(raw.size() - point - 1);
}

/// Digits of the literal as one whole number, at its own scale.
std::int64_t unitsOf(std::string_view raw) {
  Wide units = 0;
  for (const char c : raw) {
    if (c == '.') continue;
    units = units * 10 + (c - '0');
    if (!narrow(units)) refuse(Problem::NumberTooLarge, {}, raw, "64 bits");
  }
  if (decimalsOf(raw) > kMaxDigits) refuse(Problem::NumberTooLarge, {}, raw, "18 decimales");
  return static_cast<std::int64_t>(units);
}

ado::Bytes bytesOf(std::string_view raw) {
  const auto nibble = [](char c) {
    return static_cast<unsigned>(c <= '9' ? c - '0' : (c | 0x20) - 'a' + 10);
  };
  std::string digits(raw.substr(2));
  if (digits.size() % 2 == 1) digits.insert(digits.begin(), '0');
  ado::Bytes bytes;
  for (std::size_t i = 0; i < digits.size(); i += 2) {
    bytes.push_back(static_cast<std::byte>(nibble(digits[i]) * 16 + nibble(digits[i + 1])));
  }
  return bytes;
}

/// The number, if no digit is lost; else empty.
std::optional<StoredValue> comparedNumber(std::int64_t units, int scale, const Type& target) {
  while (scale > target.scale && units % 10 == 0) {
    units /= 10;
    --scale;
  }
  if (scale > target.scale) return std::nullopt;
  const auto rescaled = rescaleUnits(units, scale, target.scale);
  if (!rescaled) return std::nullopt;
  return StoredValue(*rescaled);
}

StoredValue assignedNumber(std::int64_t units, const Literal& literal, const Type& target) {
  const int scale = decimalsOf(literal.raw);
  if (isText(target)) {
    Type type = typeOf(literal);
    if (scale == 0) type = intType();  // however long: digits alone
    const auto text = textFromUnits(units, type, varCharType(0));
    if (target.length != 0 && static_cast<int>(text.size()) > target.length) {
      refuse(Problem::NumberTooLarge, {}, literal.raw, nameOf(target));
    }
    return fixedText(text, target);
  }
  // A whole number takes the digits before the point; money and decimals round.
  const auto rescaled = target.kind == TypeKind::Int && scale > 0
                            ? divideUnits(units, 1, -scale)
                            : rescaleUnits(units, scale, target.scale);
  if (target.kind == TypeKind::Bit) return std::int64_t{units != 0 ? 1 : 0};
  if (!rescaled || (target.kind == TypeKind::Int && !asInt(*rescaled)) ||
      (target.kind == TypeKind::Decimal && !hasDigits(*rescaled, target.precision))) {
    refuse(Problem::NumberTooLarge, {}, literal.raw, nameOf(target));
  }
  return *rescaled;
}

std::optional<StoredValue> convertUnplaced(const Literal& literal, const ParameterUse& use) {
  if (!mayMeet(literal.kind, use.target)) {
    refuse(Problem::TypesDiffer, {}, literal.raw,
           nameOf(typeOf(literal)) + " y " + nameOf(use.target));
  }
  switch (literal.kind) {
    case PieceKind::Whole:
    case PieceKind::Decimal: {
      const auto units = use.negated ? -unitsOf(literal.raw) : unitsOf(literal.raw);
      if (use.compared) return comparedNumber(units, decimalsOf(literal.raw), use.target);
      return assignedNumber(units, literal, use.target);
    }
    case PieceKind::Text: {
      auto text = textOf(literal);
      if (isNumber(use.target)) return unitsFromText(text, use.target);
      if (use.target.kind == TypeKind::Date) return isoFromText(text);
      if (use.compared) return text;
      return storedText(text, use.target, use.column);
    }
    default:
      return bytesOf(literal.raw);
  }
}

}  // namespace

std::string textOf(const Literal& literal) {
  auto inside = literal.raw.substr(literal.raw.find('\'') + 1);
  inside.remove_suffix(1);
  std::string text;
  text.reserve(inside.size());
  for (std::size_t i = 0; i < inside.size(); ++i) {
    text += inside[i];
    if (inside[i] == '\'') ++i;
  }
  return text;
}

Type typeOf(const Literal& literal) {
  switch (literal.kind) {
    case PieceKind::Whole: {
      const auto firstDigit = std::min(literal.raw.find_first_not_of('0'), literal.raw.size() - 1);
      const int digits = static_cast<int>(literal.raw.size() - firstDigit);
      const bool fits = digits < 10 || (digits == 10 && asInt(unitsOf(literal.raw)));
      return fits ? intType() : decimalType(digits, 0);
    }
    case PieceKind::Decimal: {
      const auto firstDigit = std::min(literal.raw.find_first_not_of('0'), literal.raw.find('.'));
      const int digits = static_cast<int>(literal.raw.size() - firstDigit) - 1;
      return decimalType(std::max(digits, 1), decimalsOf(literal.raw));
    }
    case PieceKind::Text:
      return varCharType(std::max(1, static_cast<int>(ado::characterCount(textOf(literal)))));
    default:
      return {.kind = TypeKind::VarBinary};
  }
}

StoredValue valueOf(const Literal& literal) {
  if (literal.kind == PieceKind::Text) return textOf(literal);
  if (literal.kind == PieceKind::Binary) return bytesOf(literal.raw);
  return unitsOf(literal.raw);
}

std::optional<StoredValue> convert(const Literal& literal, const ParameterUse& use,
                                   std::string_view text) {
  try {
    return convertUnplaced(literal, use);
  } catch (Refusal& refusal) {
    refusal.where = locate(text, literal.offset);
    throw;
  }
}

bool mayMeet(PieceKind literal, const Type& target) {
  switch (literal) {
    case PieceKind::Text:
      return target.kind != TypeKind::VarBinary;
    case PieceKind::Binary:
      return target.kind == TypeKind::VarBinary;
    default:
      return isNumber(target) || isText(target);
  }
}

}  // namespace korvantes::tsql
