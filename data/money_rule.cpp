#include "data/money_rule.h"

#include "outside/plindor/util_formulario.h"

namespace korvantes::data {

namespace {

using ado::Decimal;

constexpr int kCents = 2;
/// A percentage counts hundredths.
constexpr int kPercent = 2;

Decimal toCents(const Decimal& value) {
  return value.rescaled(Decimal::kMoneyScale).rescaled(kCents);
}

/// A percentage of an amount, to money and then to cents.
Decimal shareOf(const Decimal& amount, const Decimal& percent) {
  return Decimal::product(amount, percent, kPercent, Decimal::kMoneyScale).rescaled(kCents);
}

}  // namespace

OptionalDecimal lineNet(const OptionalDecimal& amount, const OptionalDecimal& discount1,
                        const OptionalDecimal& discount2) {
  if (!amount || !discount1 || !discount2) return {};
  const Decimal left = toCents(*amount - shareOf(*amount, *discount1));
  return left - shareOf(left, *discount2);
}

Decimal lineCommission(const OptionalDecimal& amount, const OptionalDecimal& discount1,
                       const OptionalDecimal& discount2, const OptionalDecimal& commission) {
  const OptionalDecimal net = lineNet(amount, discount1, discount2);
  return net && commission ? shareOf(*net, *commission) : Decimal(0, kCents);
}

OptionalDecimal noteNet(const OptionalDecimal& sumOfLines, const OptionalDecimal& discount1,
                        const OptionalDecimal& discount2) {
  if (!sumOfLines || !discount1 || !discount2) return {};
  const Decimal left = toCents(*sumOfLines) - shareOf(*sumOfLines, *discount1);
  return left - shareOf(left, *discount2);
}

double commissionPercent(const Decimal& commission, const Decimal& net) {
  if (net.units() == 0) return 0;
  const plindor::UtilFormulario util;
  return util.Redondea(util.Redondea(commission.toDouble() * 100, kCents) / net.toDouble(), kCents);
}

Decimal percentageOf(const Decimal& amount, const Decimal& percent) {
  return Decimal::product(amount, percent, kPercent, kCents);
}

}  // namespace korvantes::data
