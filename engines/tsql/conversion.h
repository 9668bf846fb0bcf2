#pragma once

#include <initializer_list>
#include <optional>
#include <string>
#include <vector>

#include "engines/tsql/problem.h"
#include "engines/tsql/typed.h"

namespace korvantes::tsql {

/// Where an expression is in the text, and what messages call it.
struct Place {
  Location where;
  std::string word;
};

template <typename Node>
typed::ExpressionPtr make(const Type& type, Node node) {
  return std::make_unique<typed::Expression>(typed::Expression{type, std::move(node)});
}

template <typename... Operands>
typed::ExpressionPtr operate(typed::Operation operation, const Type& type,
                             std::array<int, 3> numbers, Operands... operands) {
  typed::Operate node{operation, {}, numbers, {}};
  (node.operands.push_back(std::move(operands)), ...);
  return make(type, std::move(node));
}

typed::ExpressionPtr nullConstant();
bool isNullConstant(const typed::Expression& expression);
/// The units of a constant number; empty for anything else.
std::optional<std::int64_t> constantUnits(const typed::Expression& expression);

/// The common type of two expressions: of a CASE, a COALESCE, a UNION, a comparison. Empty if they
/// are incompatible.
std::optional<Type> commonType(const Type& a, const Type& b);

/// A number at another scale. Consecutive multiplications and rescalings become one operation.
typed::ExpressionPtr rescaled(typed::ExpressionPtr value, int scale, const Type& type);

/// ROUND(value, places).
typed::ExpressionPtr rounded(typed::ExpressionPtr value, int places);

/// CAST(value AS target): texts are cut, whole numbers too long for a text become "*".
typed::ExpressionPtr converted(typed::ExpressionPtr value, const Type& target, const Place& place);

/// The value as a comparison with the other side, whose common type is given, needs it: only scales
/// and kinds are matched, so that a column remains a plain column if possible.
typed::ExpressionPtr compared(typed::ExpressionPtr value, const Type& common, const Place& place);

/// The value as it goes into a column: a text too long and, where the column forbids it, a Null
/// are errors.
typed::ExpressionPtr assigned(typed::ExpressionPtr value, const ColumnDefinition& column,
                              const Place& place);

}  // namespace korvantes::tsql
