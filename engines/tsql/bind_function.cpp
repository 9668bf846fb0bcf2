#include <algorithm>
#include <array>

#include "engines/tsql/arithmetic.h"
#include "engines/tsql/binder.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

using typed::AggregateKind;
using typed::ExpressionPtr;
using typed::Operation;

namespace {

constexpr int kTextOfNumber = 30;  // characters of a number or date converted to text

Place placeOf(const syntax::Expression& at) {
  return {at.where, at.word};
}

bool isCalled(const syntax::Call& call, std::string_view name) {
  return ado::sameName(call.function, name);
}

void requireArguments(const syntax::Call& call, std::size_t count, Location where) {
  if (call.arguments.size() == count) return;
  const std::string words = count == 1 ? "un argumento" : std::to_string(count) + " argumentos";
  refuse(Problem::ArgumentCount, where, call.function, words);
}

struct TextFunction {
  std::string_view name;
  Operation operation;
};

constexpr std::array kTextFunctions{
    TextFunction{"UPPER", Operation::Upper},    TextFunction{"LOWER", Operation::Lower},
    TextFunction{"LTRIM", Operation::TrimLeft}, TextFunction{"RTRIM", Operation::TrimRight},
    TextFunction{"LEN", Operation::Length},
};

/// SUM and AVG of whole numbers, money and decimals.
void requireSummable(const typed::Expression& operand, const Place& place) {
  const Type& type = operand.type;
  if (isNumber(type) && type.kind != TypeKind::Bit) return;
  refuse(Problem::WrongType, place.where, place.word, nameOf(type));
}

ExpressionPtr sum(ExpressionPtr operand, bool distinct) {
  Type type = operand->type;
  if (type.kind == TypeKind::Decimal) type.precision = 38;
  auto result = make(type, typed::Aggregate{AggregateKind::Sum, distinct, std::move(operand)});
  if (type.kind != TypeKind::Int) return result;
  return operate(Operation::CheckInt, type, {}, std::move(result));
}

}  // namespace

bool isAggregate(const syntax::Call& call) {
  constexpr std::array<std::string_view, 5> kNames{"SUM", "COUNT", "MIN", "MAX", "AVG"};
  return std::any_of(kNames.begin(), kNames.end(),
                     [&](std::string_view name) { return isCalled(call, name); });
}

ExpressionPtr Binder::bind(const syntax::Call& call, const syntax::Expression& at) {
  if (isAggregate(call)) return bindAggregate(call, at);
  const Place place = placeOf(at);
  if (call.distinct) refuse(Problem::Unexpected, at.where, "DISTINCT");
  if (isCalled(call, "ROUND")) return bindRound(call, place);
  if (isCalled(call, "ISNULL")) return bindIsNullFunction(call, place);
  if (isCalled(call, "COALESCE")) return bindCoalesce(call, place);
  if (isCalled(call, "ABS")) {
    requireArguments(call, 1, at.where);
    auto operand = bindValue(*call.arguments[0]);
    if (isText(operand->type)) operand = converted(std::move(operand), decimalType(18, 6), place);
    if (isNullConstant(*operand)) return operand;
    if (!isNumber(operand->type)) {
      refuse(Problem::WrongType, at.where, at.word, nameOf(operand->type));
    }
    const Type type = operand->type;
    return operate(Operation::Absolute, type, {}, std::move(operand));
  }
  for (const auto& function : kTextFunctions) {
    if (isCalled(call, function.name)) return bindTextFunction(function.operation, call, place);
  }
  refuse(Problem::NoFunction, at.where, call.function);
}

ExpressionPtr Binder::bindRound(const syntax::Call& call, const Place& place) {
  requireArguments(call, 2, place.where);
  auto value = bindValue(*call.arguments[0]);
  const auto places = bindValue(*call.arguments[1]);
  const auto count = constantUnits(*places);
  if (!count || places->type.kind != TypeKind::Int) {
    refuse(Problem::WrongType, call.arguments[1]->where, call.arguments[1]->word,
           "que no sea un número entero fijo");
  }
  if (isNullConstant(*value)) return value;
  if (!isNumber(value->type)) {
    refuse(Problem::WrongType, place.where, place.word, nameOf(value->type));
  }
  constexpr std::int64_t kLimit = 38;
  return rounded(std::move(value), static_cast<int>(std::clamp(*count, -kLimit, kLimit)));
}

ExpressionPtr Binder::bindIsNullFunction(const syntax::Call& call, const Place& place) {
  requireArguments(call, 2, place.where);
  auto value = bindValue(*call.arguments[0]);
  auto instead = bindValue(*call.arguments[1]);
  if (isNullConstant(*value)) return instead;
  const Type type = value->type;
  instead = converted(std::move(instead), type, place);
  return operate(Operation::Coalesce, type, {}, std::move(value), std::move(instead));
}

ExpressionPtr Binder::bindCoalesce(const syntax::Call& call, const Place& place) {
  if (call.arguments.size() < 2) {
    refuse(Problem::ArgumentCount, place.where, call.function, "dos argumentos o más");
  }
  typed::Operate node{Operation::Coalesce, {}, {}, {}};
  Type type;
  for (const auto& argument : call.arguments) {
    node.operands.push_back(bindValue(*argument));
    const Type other = node.operands.back()->type;
    const auto common = commonType(type, other);
    if (!common) {
      refuse(Problem::TypesDiffer, argument->where, argument->word,
             nameOf(type) + " y " + nameOf(other));
    }
    type = *common;
  }
  for (auto& operand : node.operands) operand = converted(std::move(operand), type, place);
  return make(type, std::move(node));
}

ExpressionPtr Binder::bindTextFunction(Operation operation, const syntax::Call& call,
                                       const Place& place) {
  requireArguments(call, 1, place.where);
  auto operand = bindValue(*call.arguments[0]);
  if (!isText(operand->type)) {
    operand = converted(std::move(operand), varCharType(kTextOfNumber), place);
  }
  const Type type = operation == Operation::Length ? intType() : varCharType(operand->type.length);
  return operate(operation, type, {}, std::move(operand));
}

ExpressionPtr Binder::bindAggregate(const syntax::Call& call, const syntax::Expression& at) {
  const Place place = placeOf(at);
  if (scope_ == nullptr || !scope_->aggregatesAllowed || scope_->insideAggregate) {
    refuse(Problem::AggregateHere, at.where, call.function);
  }
  requireArguments(call, 1, at.where);
  const bool counts = isCalled(call, "COUNT");
  if (std::holds_alternative<syntax::Star>(call.arguments[0]->node)) {
    if (!counts) refuse(Problem::Unexpected, call.arguments[0]->where, "*");
    return make(intType(), typed::Aggregate{AggregateKind::CountRows, false, nullptr});
  }
  scope_->insideAggregate = true;
  const int before = scope_->ownReferences;
  auto operand = bindValue(*call.arguments[0]);
  // An aggregate over outer columns alone would belong to the outer SELECT.
  const bool constant = constantUnits(*operand).has_value();
  if (scope_->ownReferences == before && !constant) {
    refuse(Problem::AggregateHere, at.where, call.function);
  }
  scope_->insideAggregate = false;
  if (counts) {
    return make(intType(),
                typed::Aggregate{AggregateKind::Count, call.distinct, std::move(operand)});
  }
  const bool least = isCalled(call, "MIN");
  if (least || isCalled(call, "MAX")) {
    const Type type = operand->type;
    if (type.kind == TypeKind::VarBinary || type.kind == TypeKind::Bit) {
      refuse(Problem::WrongType, at.where, at.word, nameOf(type));
    }
    return make(type, typed::Aggregate{least ? AggregateKind::Min : AggregateKind::Max, false,
                                       std::move(operand)});
  }
  requireSummable(*operand, place);
  if (isCalled(call, "SUM")) return sum(std::move(operand), call.distinct);
  // The operand is needed twice: it is bound again for the count.
  scope_->insideAggregate = true;
  auto counted = bindValue(*call.arguments[0]);
  scope_->insideAggregate = false;
  const Type type = operand->type;
  auto total = make(type, typed::Aggregate{AggregateKind::Sum, call.distinct, std::move(operand)});
  auto count =
      make(intType(), typed::Aggregate{AggregateKind::Count, call.distinct, std::move(counted)});
  return average(std::move(total), std::move(count));
}

}  // namespace korvantes::tsql
