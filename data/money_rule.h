#pragma once

#include <optional>

#include "runtime/ado/decimal.h"

namespace korvantes::data {

// The rule behind every amount, in exact arithmetic. data/money_rule_sql.h has the same rule in
// SQL.
//
// Each stage goes to money (four decimals) and from there to cents, halves away from zero both
// times: 1.00496 becomes 1.0050 and then 1.01. Amounts and percentages may have any scale; results
// are in cents. Null in, Null out. Every function throws ado::ConversionError for a value that does
// not fit 64 bits.

using OptionalDecimal = std::optional<ado::Decimal>;

/// The amount of a line less two cascading header discounts, in percent: the second applies to what
/// the first leaves.
OptionalDecimal lineNet(const OptionalDecimal& amount, const OptionalDecimal& discount1,
                        const OptionalDecimal& discount2);

/// Commission of a line: a percentage of its net. 0 if anything is Null.
ado::Decimal lineCommission(const OptionalDecimal& amount, const OptionalDecimal& discount1,
                            const OptionalDecimal& discount2, const OptionalDecimal& commission);

/// The amount listed for a delivery note: the sum of its lines first, discounts after. It may
/// differ by a cent from the sum of the lines' nets. Null without lines.
OptionalDecimal noteNet(const OptionalDecimal& sumOfLines, const OptionalDecimal& discount1,
                        const OptionalDecimal& discount2);

/// A commission as the percentage of the net amount that it is paid on, to two places; 0 where that
/// is 0. For the eye alone: nothing is computed from it, and it is a double.
double commissionPercent(const ado::Decimal& commission, const ado::Decimal& net);

/// A percentage of an amount, rounded once, to cents: VAT and withholding of a base.
ado::Decimal percentageOf(const ado::Decimal& amount, const ado::Decimal& percent);

}  // namespace korvantes::data
