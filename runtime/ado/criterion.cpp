#include <array>
#include <compare>
#include <utility>

#include "runtime/ado/characters.h"
#include "runtime/ado/error.h"
#include "runtime/ado/recordset_rows.h"
#include "runtime/ado/text_order.h"

namespace korvantes::ado {

namespace {

constexpr long kBadArgument = 3001;

[[noreturn]] void refuse(std::string_view criterion) {
  throw Error(kBadArgument, "El criterio de búsqueda no es válido: " + std::string(criterion));
}

Criterion::Operator takeOperator(std::string_view& text, std::string_view whole) {
  using Operator = Criterion::Operator;
  // The longer ones first.
  constexpr std::array<std::pair<std::string_view, Operator>, 6> kOperators{{
      {"<>", Operator::NotEqual},
      {"<=", Operator::LessOrEqual},
      {">=", Operator::GreaterOrEqual},
      {"=", Operator::Equal},
      {"<", Operator::Less},
      {">", Operator::Greater},
  }};
  for (const auto& [sign, comparison] : kOperators) {
    if (text.substr(0, sign.size()) != sign) continue;
    text.remove_prefix(sign.size());
    return comparison;
  }
  refuse(whole);
}

/// The text between single quotes, doubled ones made single.
std::string unquoted(std::string_view text, std::string_view whole) {
  if (text.size() < 2 || text.back() != '\'') refuse(whole);
  text = text.substr(1, text.size() - 2);
  std::string value;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\'' && (++i == text.size() || text[i] != '\'')) refuse(whole);
    value += text[i];
  }
  return value;
}

Variant valueFor(FieldType type, std::string_view text, std::string_view whole) {
  const bool quoted = !text.empty() && text.front() == '\'';
  switch (type) {
    case FieldType::VarChar:
      if (quoted) return unquoted(text, whole);
      break;
    case FieldType::Date:
      if (quoted) {
        if (const auto date = Date::parseDayFirst(unquoted(text, whole))) return *date;
      }
      break;
    case FieldType::LongVarBinary:
      break;
    default:
      if (const auto number = Decimal::parse(text)) return *number;
  }
  refuse(whole);
}

std::partial_ordering compareNumbers(const Variant& a, const Decimal& b) {
  switch (a.kind()) {
    case Variant::Kind::Decimal:
      return a.decimal() <=> b;
    case Variant::Kind::Whole:
      return Decimal(a.whole(), 0) <=> b;
    default:
      return a.asDouble() <=> b.toDouble();
  }
}

std::partial_ordering compare(const Variant& a, const Variant& wanted) {
  switch (wanted.kind()) {
    case Variant::Kind::Text:
      return compareTexts(a.text(), wanted.text()) <=> 0;
    case Variant::Kind::Date:
      return a.date() <=> wanted.date();
    default:
      return compareNumbers(a, wanted.decimal());
  }
}

}  // namespace

Criterion parseCriterion(std::string_view text, const std::vector<FieldDefinition>& fields) {
  const std::string_view whole = text;
  const auto sign = text.find_first_of("=<>");
  if (sign == std::string_view::npos) refuse(whole);
  std::string_view name = trimmed(text.substr(0, sign));
  if (name.size() > 2 && name.front() == '[' && name.back() == ']') {
    name = name.substr(1, name.size() - 2);
  }
  text.remove_prefix(sign);
  Criterion criterion;
  criterion.comparison = takeOperator(text, whole);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    if (!sameName(fields[i].name, name)) continue;
    criterion.field = i;
    criterion.value = valueFor(fields[i].type, trimmed(text), whole);
    return criterion;
  }
  refuse(whole);
}

bool matches(const Criterion& criterion, const Variant& value) {
  using Operator = Criterion::Operator;
  if (value.isNull()) return false;
  const std::partial_ordering order = compare(value, criterion.value);
  switch (criterion.comparison) {
    case Operator::Equal:
      return order == 0;
    case Operator::NotEqual:
      return order != 0;
    case Operator::Less:
      return order < 0;
    case Operator::LessOrEqual:
      return order <= 0;
    case Operator::Greater:
      return order > 0;
    case Operator::GreaterOrEqual:
      return order >= 0;
  }
  return false;
}

}  // namespace korvantes::ado
