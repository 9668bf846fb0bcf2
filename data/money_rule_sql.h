#pragma once

#include <string>
#include <string_view>

namespace korvantes::data::sql {

// The rule of data/money_rule.h as the fragments of which statements are made. The rounding is the
// server's: CAST to money, then ROUND to cents, at every stage. Fragments are sent as they are
// written, with their blanks.

/// Net of a delivery note's line: the amount less discount 1, then less discount 2 of what is left,
/// for which that is worked out again. Both together are one expression between brackets.
extern const std::string_view kNoteLineLessDiscount1, kNoteLineLessDiscount2;
/// The same of an order's line.
extern const std::string_view kOrderLineLessDiscount1, kOrderLineLessDiscount2;

/// The commission on a net amount that stands before it.
extern const std::string_view kTimesNoteCommission, kTimesOrderCommission;

/// Around a commission: to cents, Null as 0. What follows the closing one names the column.
extern const std::string_view kOpenCommission, kCloseCommission;

/// The net of a delivery note's line, and the commission on it in cents, as whole expressions.
std::string noteLineNet();
std::string noteLineCommission();

/// The amount listed for a delivery note, as a correlated subquery on cav_id without its FROM
/// ("FROM laV where laV_Idcav= cav_id) as …"). Null without lines or with a Null discount.
extern const std::string_view kNoteNet;

}  // namespace korvantes::data::sql
