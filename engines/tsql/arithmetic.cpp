#include "engines/tsql/arithmetic.h"

#include <algorithm>

#include "engines/tsql/runtime.h"

namespace korvantes::tsql {

namespace {

using syntax::BinaryOperator;
using typed::ExpressionPtr;
using typed::Operation;

constexpr int kServerDigits = 38;
constexpr int kQuotientDecimals = 6;

bool isWhole(const Type& type) {
  return type.kind == TypeKind::Int || type.kind == TypeKind::Bit;
}

/// The type of a number as a decimal; a whole constant has as many digits as are written.
Type asDecimal(const typed::Expression& value) {
  switch (value.type.kind) {
    case TypeKind::Bit:
      return decimalType(1, 0);
    case TypeKind::Int: {
      const auto units = constantUnits(value);
      if (!units) return decimalType(10, 0);
      return decimalType(static_cast<int>(std::to_string(std::abs(*units)).size()), 0);
    }
    case TypeKind::Money:
      return decimalType(19, kMoneyScale);
    default:
      return value.type;
  }
}

Type decimalResult(int precision, int scale) {
  return decimalType(std::min(precision, kServerDigits), scale);
}

/// k of a whole constant 10^k, k from 1.
std::optional<int> powerOfTenConstant(const typed::Expression& value) {
  auto units = constantUnits(value);
  if (!units || !isWhole(value.type) || *units < 10) return std::nullopt;
  int power = 0;
  while (*units % 10 == 0) {
    *units /= 10;
    ++power;
  }
  return *units == 1 ? std::optional(power) : std::nullopt;
}

Operation operationOf(BinaryOperator op) {
  switch (op) {
    case BinaryOperator::Add:
      return Operation::Add;
    case BinaryOperator::Subtract:
      return Operation::Subtract;
    case BinaryOperator::Multiply:
      return Operation::Multiply;
    case BinaryOperator::Divide:
      return Operation::Divide;
    default:
      return Operation::Modulo;
  }
}

ExpressionPtr wholeArithmetic(BinaryOperator op, ExpressionPtr left, ExpressionPtr right) {
  auto result = operate(operationOf(op), intType(), {}, std::move(left), std::move(right));
  if (op == BinaryOperator::Modulo) return result;
  return operate(Operation::CheckInt, intType(), {}, std::move(result));
}

ExpressionPtr divided(ExpressionPtr left, ExpressionPtr right, const Type& result) {
  const int shift = result.scale - left->type.scale + right->type.scale;
  return operate(Operation::Divide, result, {shift}, std::move(left), std::move(right));
}

ExpressionPtr sumOf(BinaryOperator op, ExpressionPtr left, ExpressionPtr right,
                    const Type& result) {
  left = rescaled(std::move(left), result.scale, result);
  right = rescaled(std::move(right), result.scale, result);
  return operate(operationOf(op), result, {}, std::move(left), std::move(right));
}

ExpressionPtr productOf(ExpressionPtr left, ExpressionPtr right, const Type& product) {
  return operate(Operation::Multiply, product, {}, std::move(left), std::move(right));
}

ExpressionPtr moneyArithmetic(BinaryOperator op, ExpressionPtr left, ExpressionPtr right) {
  switch (op) {
    case BinaryOperator::Add:
    case BinaryOperator::Subtract:
      return sumOf(op, std::move(left), std::move(right), moneyType());
    case BinaryOperator::Multiply: {
      const int scale = left->type.scale + right->type.scale;
      auto product =
          productOf(std::move(left), std::move(right), decimalResult(kServerDigits, scale));
      return rescaled(std::move(product), kMoneyScale, moneyType());
    }
    default:
      return divided(std::move(left), std::move(right), moneyType());
  }
}

ExpressionPtr decimalQuotient(ExpressionPtr left, ExpressionPtr right) {
  const Type a = asDecimal(*left);
  const Type b = asDecimal(*right);
  if (const auto power = powerOfTenConstant(*right); power && a.scale + *power <= kMaxDigits) {
    const int scale = a.scale + *power;
    // No computation: the same units are read at the new scale.
    left->type = decimalResult(std::max(a.precision, scale), scale);
    return left;
  }
  const int wholeDigits = std::max(a.precision - a.scale + b.scale, 0);
  int scale = std::max(kQuotientDecimals, a.scale + b.precision + 1);
  scale = std::min(scale, std::max(kQuotientDecimals, kMaxDigits - wholeDigits));
  return divided(std::move(left), std::move(right), decimalResult(wholeDigits + scale, scale));
}

ExpressionPtr decimalArithmetic(BinaryOperator op, ExpressionPtr left, ExpressionPtr right,
                                const Place& place) {
  const Type a = asDecimal(*left);
  const Type b = asDecimal(*right);
  switch (op) {
    case BinaryOperator::Add:
    case BinaryOperator::Subtract: {
      const int scale = std::max(a.scale, b.scale);
      const int whole = std::max(a.precision - a.scale, b.precision - b.scale);
      return sumOf(op, std::move(left), std::move(right), decimalResult(whole + scale + 1, scale));
    }
    case BinaryOperator::Multiply: {
      const int scale = a.scale + b.scale;
      if (scale > kMaxDigits) refuse(Problem::TooManyDecimals, place.where, place.word);
      return productOf(std::move(left), std::move(right),
                       decimalResult(a.precision + b.precision + 1, scale));
    }
    default:
      return decimalQuotient(std::move(left), std::move(right));
  }
}

void requireNumber(const typed::Expression& value, const Place& place) {
  if (!isNumber(value.type)) {
    refuse(Problem::WrongType, place.where, place.word, nameOf(value.type));
  }
}

ExpressionPtr joined(ExpressionPtr left, ExpressionPtr right) {
  const int a = left->type.length;
  const int b = right->type.length;
  const Type type = varCharType(a == 0 || b == 0 ? 0 : a + b);
  return operate(Operation::Concatenate, type, {}, std::move(left), std::move(right));
}

}  // namespace

ExpressionPtr arithmetic(BinaryOperator op, ExpressionPtr left, ExpressionPtr right,
                         const Place& place) {
  // A Null, or a text next to a number, takes the other side's type.
  for (auto [one, other] : {std::pair(&left, &right), std::pair(&right, &left)}) {
    const Type& type = (*other)->type;
    const bool follows = isNullConstant(**one) || (isText((*one)->type) && isNumber(type));
    if (follows && type.kind != TypeKind::Null) *one = converted(std::move(*one), type, place);
  }
  if (isText(left->type) && isText(right->type) && op == BinaryOperator::Add) {
    return joined(std::move(left), std::move(right));
  }
  if (isNullConstant(*left) && isNullConstant(*right)) return left;
  requireNumber(*left, place);
  requireNumber(*right, place);
  const bool whole = isWhole(left->type) && isWhole(right->type);
  if (op == BinaryOperator::Modulo && !whole) {
    requireNumber(*left, place);
    refuse(Problem::WrongType, place.where, place.word,
           nameOf(isWhole(left->type) ? right->type : left->type));
  }
  if (whole) return wholeArithmetic(op, std::move(left), std::move(right));
  const bool decimal =
      left->type.kind == TypeKind::Decimal || right->type.kind == TypeKind::Decimal;
  if (!decimal) return moneyArithmetic(op, std::move(left), std::move(right));
  return decimalArithmetic(op, std::move(left), std::move(right), place);
}

ExpressionPtr negated(ExpressionPtr operand, const Place& place) {
  if (isNullConstant(*operand)) return operand;
  requireNumber(*operand, place);
  const Type type = operand->type.kind == TypeKind::Bit ? intType() : operand->type;
  if (const auto units = constantUnits(*operand)) return make(type, typed::Constant{-*units});
  auto zero = make(type, typed::Constant{std::int64_t{0}});
  auto result = operate(Operation::Subtract, type, {}, std::move(zero), std::move(operand));
  if (type.kind != TypeKind::Int) return result;
  return operate(Operation::CheckInt, type, {}, std::move(result));
}

ExpressionPtr average(ExpressionPtr sum, ExpressionPtr count) {
  if (sum->type.kind != TypeKind::Decimal) {
    const Type type = sum->type;
    return divided(std::move(sum), std::move(count), type);
  }
  const int scale = std::max(sum->type.scale, kQuotientDecimals);
  const Type type = decimalType(kServerDigits, scale);
  return divided(std::move(sum), std::move(count), type);
}

}  // namespace korvantes::tsql
