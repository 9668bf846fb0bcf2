#include "tests/component/exact_commission.h"

namespace korvantes {

namespace {

__extension__ using Wide = __int128;

Wide powerOfTen(int exponent) {
  return exponent == 0 ? Wide{1} : 10 * powerOfTen(exponent - 1);
}

/// Half away from zero.
Wide divided(Wide number, Wide divisor) {
  const Wide magnitude = number < 0 ? -number : number;
  const Wide quotient = (2 * magnitude + divisor) / (2 * divisor);
  return number < 0 ? -quotient : quotient;
}

/// A number with `places` decimals to money, four places, and then to cents: rounded twice.
Wide cents(Wide number, int places) {
  const Wide money =
      places > 4 ? divided(number, powerOfTen(places - 4)) : number * powerOfTen(4 - places);
  return divided(money, 100);
}

}  // namespace

std::int64_t exactNet(const Discounts& discounts, const Line& line) {
  if (!line.amount || !discounts.first || !discounts.second) return 0;
  // An amount (4 places) times a discount (2) divided by 100 (2 more).
  const Wide first = cents(Wide{*line.amount} * *discounts.first, 8);
  const Wide left = cents(*line.amount - first * 100, 4);
  // Cents (2) times a discount (2) divided by 100 (2 more).
  const Wide second = cents(left * *discounts.second, 6);
  return static_cast<std::int64_t>(left - second);
}

std::int64_t exactCommission(const Discounts& discounts, const Line& line) {
  if (!line.commission) return 0;
  // Cents (2) divided by 100 (2 more) times a commission (3).
  return static_cast<std::int64_t>(cents(Wide{exactNet(discounts, line)} * *line.commission, 7));
}

}  // namespace korvantes
