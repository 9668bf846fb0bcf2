#pragma once

#include <string>
#include <string_view>

namespace korvantes::data::sql {

// The rule of data/money_rule.h as fragments of statements. The server does the rounding: CAST to
// money, then ROUND to cents, at every stage. Fragments are sent unchanged, including their blanks.

/// Net of a delivery note line: the amount less discount 1, then less discount 2 of the remainder,
/// which the second fragment computes again. Concatenated, they are one parenthesised expression.
extern const std::string_view kNoteLineLessDiscount1, kNoteLineLessDiscount2;
/// The same for an order line.
extern const std::string_view kOrderLineLessDiscount1, kOrderLineLessDiscount2;

/// Follows a net amount: the commission on it.
extern const std::string_view kTimesNoteCommission, kTimesOrderCommission;

/// Enclose a commission: rounded to cents, Null as 0. The name of the column follows the closing
/// one.
extern const std::string_view kOpenCommission, kCloseCommission;

/// The net of a delivery note line, and the commission on it in cents, as complete expressions.
std::string noteLineNet();
std::string noteLineCommission();

/// The amount listed for a delivery note, as a correlated subquery on cav_id without its FROM
/// ("FROM laV where laV_Idcav= cav_id) as …"). Null without lines or with a Null discount.
extern const std::string_view kNoteNet;

}  // namespace korvantes::data::sql
