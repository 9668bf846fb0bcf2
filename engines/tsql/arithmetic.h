#pragma once

#include "engines/tsql/conversion.h"
#include "engines/tsql/syntax.h"
#include "engines/tsql/typed.h"

namespace korvantes::tsql {

/// left op right for + - * / %, typed as on the server, except that decimals stay within 64 bits:
/// products add their scales (more than 18 decimals are refused); dividing by a whole constant that
/// is a power of ten moves the point; any other quotient of decimals has six decimals or as many
/// more as fit 18 digits, the rest cut off. Whole numbers stay whole, money with money or whole
/// numbers stays money. + of two texts joins them.
typed::ExpressionPtr arithmetic(syntax::BinaryOperator op, typed::ExpressionPtr left,
                                typed::ExpressionPtr right, const Place& place);

/// -operand.
typed::ExpressionPtr negated(typed::ExpressionPtr operand, const Place& place);

/// SUM(operand) / COUNT(operand), in the type of AVG.
typed::ExpressionPtr average(typed::ExpressionPtr sum, typed::ExpressionPtr count);

}  // namespace korvantes::tsql
