#include <limits>

#include "engines/tsql/arithmetic.h"
#include "engines/tsql/binder.h"

namespace korvantes::tsql {

using typed::ExpressionPtr;
using typed::Operation;

namespace {

Place placeOf(const syntax::Expression& at) {
  return {at.where, at.word};
}

std::optional<typed::Comparison> comparisonOf(syntax::BinaryOperator op) {
  switch (op) {
    case syntax::BinaryOperator::Equal:
      return typed::Comparison::Equal;
    case syntax::BinaryOperator::NotEqual:
      return typed::Comparison::NotEqual;
    case syntax::BinaryOperator::Less:
      return typed::Comparison::Less;
    case syntax::BinaryOperator::LessEqual:
      return typed::Comparison::LessEqual;
    case syntax::BinaryOperator::Greater:
      return typed::Comparison::Greater;
    case syntax::BinaryOperator::GreaterEqual:
      return typed::Comparison::GreaterEqual;
    default:
      return std::nullopt;
  }
}

/// A literal, or a negated number.
const syntax::LiteralValue* literalOf(const syntax::Expression& expression, bool& negative) {
  if (const auto* literal = std::get_if<syntax::LiteralValue>(&expression.node)) return literal;
  const auto* unary = std::get_if<syntax::Unary>(&expression.node);
  if (unary == nullptr || unary->op != syntax::UnaryOperator::Minus) return nullptr;
  const auto* literal = std::get_if<syntax::LiteralValue>(&unary->operand->node);
  if (literal == nullptr || literal->literal.kind == PieceKind::Text) return nullptr;
  negative = true;
  return literal;
}

}  // namespace

ExpressionPtr Binder::bindExpression(const syntax::Expression& expression) {
  return std::visit([&](const auto& node) { return bind(node, expression); }, expression.node);
}

ExpressionPtr Binder::bindValue(const syntax::Expression& expression) {
  auto value = bindExpression(expression);
  if (isCondition(*value)) refuse(Problem::Unexpected, expression.where, expression.word);
  return value;
}

ExpressionPtr Binder::bindCondition(const syntax::Expression& expression) {
  auto condition = bindExpression(expression);
  if (!isCondition(*condition)) {
    refuse(Problem::ConditionExpected, expression.where, expression.word);
  }
  return condition;
}

ExpressionPtr Binder::lifted(const syntax::Expression& expression, ParameterUse use) {
  const auto* value = literalOf(expression, use.negated);
  if (value == nullptr) return nullptr;
  use.literal = value->number;
  // Digits beyond the target's scale stay in the text, where the comparison keeps them.
  if (!convert(value->literal, use, text_)) return nullptr;
  const Type type = use.target;
  parameters_.push_back(std::move(use));
  return make(type, typed::Parameter{static_cast<int>(parameters_.size())});
}

ExpressionPtr Binder::bindBeside(const syntax::Expression& expression, const Type& other) {
  bool negative = false;
  const auto* value = literalOf(expression, negative);
  const bool number = value != nullptr && (value->literal.kind == PieceKind::Whole ||
                                           value->literal.kind == PieceKind::Decimal);
  // Next to a number, a text becomes a number, not the other way round.
  const bool lifts = value != nullptr && other.kind != TypeKind::Null &&
                     mayMeet(value->literal.kind, other) && !(number && isText(other));
  if (lifts) {
    ParameterUse use;
    use.target = other;
    use.compared = true;
    if (auto parameter = lifted(expression, std::move(use))) return parameter;
  }
  return bindValue(expression);
}

ExpressionPtr Binder::bindAssigned(const syntax::Expression& expression,
                                   const ColumnDefinition& column) {
  ParameterUse use;
  use.target = column.type;
  use.column = column.name;
  if (auto parameter = lifted(expression, std::move(use))) return parameter;
  return assigned(bindValue(expression), column, placeOf(expression));
}

ExpressionPtr Binder::bind(const syntax::ColumnName& name, const syntax::Expression&) {
  if (scope_ == nullptr) refuse(Problem::NoColumn, name.column.where, name.column.text);
  const auto found = findColumn(*scope_, name);
  return make(found.column->type, typed::Column{found.source, found.column->name});
}

ExpressionPtr Binder::bind(const syntax::LiteralValue& value, const syntax::Expression& at) {
  try {
    return make(typeOf(value.literal), typed::Constant{valueOf(value.literal)});
  } catch (Refusal& refusal) {
    refusal.where = at.where;
    throw;
  }
}

ExpressionPtr Binder::bind(const syntax::NullValue&, const syntax::Expression&) {
  return nullConstant();
}

ExpressionPtr Binder::bind(const syntax::Star&, const syntax::Expression& at) {
  refuse(Problem::Unexpected, at.where, at.word);
}

ExpressionPtr Binder::bind(const syntax::Unary& unary, const syntax::Expression& at) {
  if (unary.op == syntax::UnaryOperator::Minus) {
    return negated(bindValue(*unary.operand), placeOf(at));
  }
  return make(bitType(), typed::Not{bindCondition(*unary.operand)});
}

ExpressionPtr Binder::bind(const syntax::Binary& binary, const syntax::Expression& at) {
  if (const auto op = comparisonOf(binary.op)) {
    return bindComparison(*op, *binary.left, *binary.right, placeOf(at));
  }
  const bool conjunction = binary.op == syntax::BinaryOperator::And;
  if (conjunction || binary.op == syntax::BinaryOperator::Or) {
    auto left = bindCondition(*binary.left);
    return make(bitType(),
                typed::Logical{conjunction, std::move(left), bindCondition(*binary.right)});
  }
  auto left = bindValue(*binary.left);
  return arithmetic(binary.op, std::move(left), bindValue(*binary.right), placeOf(at));
}

ExpressionPtr Binder::bind(const syntax::Cast& cast, const syntax::Expression& at) {
  constexpr int kTextLength = 30;  // of a text without a length in a CAST
  const Type target = typeOf(cast.type, kTextLength);
  auto value = bindValue(*cast.operand);
  if (cast.style) {
    if (cast.style->literal.raw != "103") {
      refuse(Problem::NotSupported, at.where, cast.style->literal.raw);
    }
    if (value->type.kind == TypeKind::Date && isText(target)) {
      constexpr int kDayFirstLength = 10;
      value =
          operate(Operation::DateToDayFirst, varCharType(kDayFirstLength), {}, std::move(value));
    }
  }
  return converted(std::move(value), target, {at.where, cast.type.name.text});
}

ExpressionPtr Binder::bind(const syntax::Case& node, const syntax::Expression& at) {
  typed::Case result;
  std::optional<Type> type = Type{};
  const auto meet = [&](const typed::Expression& value) {
    const Type other = value.type;
    const Type before = *type;
    type = commonType(before, other);
    if (!type) {
      refuse(Problem::TypesDiffer, at.where, at.word, nameOf(before) + " y " + nameOf(other));
    }
  };
  for (const auto& [when, then] : node.branches) {
    auto condition = node.subject ? bindComparison(typed::Comparison::Equal, *node.subject, *when,
                                                   placeOf(*when))
                                  : bindCondition(*when);
    auto value = bindValue(*then);
    meet(*value);
    result.branches.emplace_back(std::move(condition), std::move(value));
  }
  if (node.otherwise) {
    result.otherwise = bindValue(*node.otherwise);
    meet(*result.otherwise);
  }
  for (auto& [when, then] : result.branches) then = converted(std::move(then), *type, placeOf(at));
  if (result.otherwise)
    result.otherwise = converted(std::move(result.otherwise), *type, placeOf(at));
  return make(*type, std::move(result));
}

ExpressionPtr Binder::bind(const syntax::Subquery& subquery, const syntax::Expression& at) {
  auto select = bindSubquery(*subquery.select, at.where, true);
  const Type type = select->cores.front().items.front().value->type;
  return make(type, typed::Subquery{std::move(select)});
}

}  // namespace korvantes::tsql
