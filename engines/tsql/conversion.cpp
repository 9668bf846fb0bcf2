#include "engines/tsql/conversion.h"

#include <algorithm>

#include "engines/tsql/runtime.h"
#include "engines/tsql/text_values.h"

namespace korvantes::tsql {

namespace {

using typed::ExpressionPtr;
using typed::Operation;

/// Largest number of digits before the point in a number of the type.
int wholeDigits(const Type& type) {
  switch (type.kind) {
    case TypeKind::Bit:
      return 1;
    case TypeKind::Int:
      return 10;
    case TypeKind::Money:
      return 15;
    default:
      return type.precision - type.scale;
  }
}

ExpressionPtr relabelled(ExpressionPtr value, const Type& type) {
  value->type = type;
  return value;
}

typed::Operate* operationOf(typed::Expression& expression, Operation operation) {
  auto* node = std::get_if<typed::Operate>(&expression.node);
  return node != nullptr && node->operation == operation ? node : nullptr;
}

const std::string* constantText(const typed::Expression& expression) {
  const auto* constant = std::get_if<typed::Constant>(&expression.node);
  return constant == nullptr ? nullptr : std::get_if<std::string>(&constant->value);
}

ExpressionPtr toInt(ExpressionPtr value) {
  const Type from = value->type;
  if (from.kind == TypeKind::Bit) return relabelled(std::move(value), intType());
  if (from.kind == TypeKind::Money || from.scale == 0) {
    value = rescaled(std::move(value), 0, intType());
  } else {
    // A decimal loses the digits after the point.
    value = operate(Operation::Divide, intType(), {-from.scale}, std::move(value),
                    make(intType(), typed::Constant{std::int64_t{1}}));
  }
  return operate(Operation::CheckInt, intType(), {}, std::move(value));
}

ExpressionPtr toDecimal(ExpressionPtr value, const Type& target) {
  const int digits = wholeDigits(value->type) + target.scale;
  value = rescaled(std::move(value), target.scale, target);
  const auto units = constantUnits(*value);
  const bool fits = units ? hasDigits(*units, target.precision) : digits <= target.precision;
  if (fits) return value;
  return operate(Operation::CheckDigits, target, {target.precision}, std::move(value));
}

ExpressionPtr numberFromNumber(ExpressionPtr value, const Type& target) {
  switch (target.kind) {
    case TypeKind::Int:
      return value->type.kind == TypeKind::Int ? std::move(value) : toInt(std::move(value));
    case TypeKind::Bit:
      return operate(Operation::ToBit, target, {}, std::move(value));
    case TypeKind::Money:
      return rescaled(std::move(value), kMoneyScale, target);
    default:
      return toDecimal(std::move(value), target);
  }
}

/// Runs `read` now on a constant text; any other text is converted by the operation.
template <typename Read>
ExpressionPtr fromText(ExpressionPtr value, const Type& target, Operation operation,
                       const Place& place, Read read) {
  const auto* text = constantText(*value);
  if (text == nullptr) return operate(operation, target, {}, std::move(value));
  try {
    return make(target, typed::Constant{read(*text)});
  } catch (Refusal& refusal) {
    refusal.where = place.where;
    throw;
  }
}

ExpressionPtr textFrom(ExpressionPtr value, const Type& target, const Place& place) {
  const Type from = value->type;
  if (isNumber(from)) return operate(Operation::NumberToText, target, {}, std::move(value));
  if (from.kind == TypeKind::Date) {
    constexpr int kIsoLength = 10;
    value = operate(Operation::DateToText, varCharType(kIsoLength), {}, std::move(value));
  } else if (!isText(from)) {
    refuse(Problem::NotConvertible, place.where, place.word, nameOf(from));
  }
  const int length = value->type.length;
  const bool fits = target.length == 0 || (length != 0 && length <= target.length);
  if (target.kind == TypeKind::VarChar && fits) return relabelled(std::move(value), target);
  return operate(Operation::FixText, target, {}, std::move(value));
}

}  // namespace

ExpressionPtr nullConstant() {
  return make(Type{}, typed::Constant{});
}

bool isNullConstant(const typed::Expression& expression) {
  const auto* constant = std::get_if<typed::Constant>(&expression.node);
  return constant != nullptr && std::holds_alternative<std::monostate>(constant->value);
}

std::optional<std::int64_t> constantUnits(const typed::Expression& expression) {
  const auto* constant = std::get_if<typed::Constant>(&expression.node);
  if (constant == nullptr) return std::nullopt;
  const auto* units = std::get_if<std::int64_t>(&constant->value);
  return units == nullptr ? std::nullopt : std::optional(*units);
}

std::optional<Type> commonType(const Type& a, const Type& b) {
  if (a.kind == TypeKind::Null) return b;
  if (b.kind == TypeKind::Null || a == b) return a;
  if (isNumber(a) && isNumber(b)) {
    for (const auto kind : {TypeKind::Decimal, TypeKind::Money, TypeKind::Int}) {
      if (a.kind != kind && b.kind != kind) continue;
      if (kind != TypeKind::Decimal) return a.kind == kind ? a : b;
      const int scale = std::max(a.scale, b.scale);
      constexpr int kServerDigits = 38;
      const int whole = std::max(wholeDigits(a), wholeDigits(b));
      return decimalType(std::min(whole + scale, kServerDigits), scale);
    }
  }
  if (isText(a) && isText(b)) {
    const bool unlimited = a.length == 0 || b.length == 0;
    return varCharType(unlimited ? 0 : std::max(a.length, b.length));
  }
  const auto takesText = [](const Type& type) {
    return isNumber(type) || type.kind == TypeKind::Date;
  };
  if (takesText(a) && isText(b)) return a;
  if (isText(a) && takesText(b)) return b;
  if (a.kind == TypeKind::VarBinary && b.kind == TypeKind::VarBinary) return a;
  return std::nullopt;
}

ExpressionPtr rescaled(ExpressionPtr value, int scale, const Type& type) {
  const int from = value->type.scale;
  if (const auto units = constantUnits(*value)) {
    if (const auto folded = rescaleUnits(*units, from, scale)) {
      return make(type, typed::Constant{*folded});
    }
  }
  if (from == scale) return relabelled(std::move(value), type);
  if (auto* product = operationOf(*value, Operation::Multiply)) {
    product->operation = Operation::MultiplyRound;
    product->numbers = {from, scale, scale};
    return relabelled(std::move(value), type);
  }
  return operate(Operation::Rescale, type, {from, scale}, std::move(value));
}

ExpressionPtr rounded(ExpressionPtr value, int places) {
  const Type type = value->type;
  if (places >= type.scale) return value;
  // A division by a power of ten may have moved the point since: then nothing is joined.
  const auto gives = [&](const typed::Operate* node) {
    return node != nullptr && node->numbers[1] == type.scale;
  };
  if (auto* rescale = operationOf(*value, Operation::Rescale); gives(rescale)) {
    rescale->operation = Operation::RescaleRound;
    rescale->numbers[2] = places;
    return value;
  }
  auto* product = operationOf(*value, Operation::MultiplyRound);
  if (gives(product) && product->numbers[2] == product->numbers[1]) {
    product->numbers[2] = places;
    return value;
  }
  if (auto* difference = operationOf(*value, Operation::Subtract)) {
    difference->operation = Operation::SubtractRound;
    difference->numbers = {type.scale, places};
    return value;
  }
  return operate(Operation::Round, type, {type.scale, places}, std::move(value));
}

ExpressionPtr converted(ExpressionPtr value, const Type& target, const Place& place) {
  const Type from = value->type;
  if (from == target) return value;
  if (isNullConstant(*value)) return relabelled(std::move(value), target);
  if (isText(target)) return textFrom(std::move(value), target, place);
  if (isNumber(target) && isNumber(from)) return numberFromNumber(std::move(value), target);
  if (isNumber(target) && isText(from)) {
    return fromText(std::move(value), target, Operation::TextToNumber, place,
                    [&](std::string_view text) { return unitsFromText(text, target); });
  }
  if (target.kind == TypeKind::Date && isText(from)) {
    return fromText(std::move(value), target, Operation::TextToDate, place, isoFromText);
  }
  if (target.kind == from.kind) return relabelled(std::move(value), target);
  refuse(Problem::NotConvertible, place.where, nameOf(target), nameOf(from));
}

ExpressionPtr compared(ExpressionPtr value, const Type& common, const Place& place) {
  const Type from = value->type;
  if (isNullConstant(*value)) return value;
  if (isNumber(from) && isNumber(common)) {
    Type type = from;
    type.scale = common.scale;
    return rescaled(std::move(value), common.scale, type);
  }
  if (isText(from) && isText(common)) return value;
  return converted(std::move(value), common, place);
}

ExpressionPtr assigned(ExpressionPtr value, const ColumnDefinition& column, const Place& place) {
  if (isNullConstant(*value)) {
    if (!column.nullable) refuse(Problem::NullValue, place.where, column.name);
    return value;
  }
  const Type from = value->type;
  if (isText(column.type)) {
    value = converted(std::move(value), isText(from) ? from : varCharType(0), place);
    const int length = value->type.length;
    const bool fits = column.type.kind == TypeKind::VarChar &&
                      (column.type.length == 0 || (length != 0 && length <= column.type.length));
    if (!fits) {
      value = operate(Operation::StoreText, column.type, {}, std::move(value));
      std::get<typed::Operate>(value->node).column = column.name;
    }
  } else {
    value = converted(std::move(value), column.type, place);
  }
  if (!column.nullable) {
    const Type type = value->type;
    value = operate(Operation::RefuseNull, type, {}, std::move(value));
    std::get<typed::Operate>(value->node).column = column.name;
  }
  return value;
}

}  // namespace korvantes::tsql
