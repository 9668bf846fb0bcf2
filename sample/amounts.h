#pragma once

#include <cstdint>
#include <optional>

namespace korvantes::sample {

// Exact amounts of the sample, in whole numbers: money in units of 1/10000, percentages of
// discounts and rates in hundredths, commissions in thousandths of a percent.

/// Numerator by divisor, halves away from zero.
constexpr std::int64_t dividedHalfUp(std::int64_t numerator, std::int64_t divisor) {
  const std::int64_t half = divisor / 2;
  return (numerator < 0 ? numerator - half : numerator + half) / divisor;
}

constexpr std::int64_t toCents(std::int64_t money) {
  return dividedHalfUp(money, 100);
}

/// Percentage (in hundredths) of an amount in cents, in cents: rates of VAT and withholding.
constexpr std::int64_t percentOfCents(std::int64_t cents, std::int64_t hundredths) {
  return dividedHalfUp(cents * hundredths, 10'000);
}

/// What two cascading discounts leave of an amount, in cents; each stage goes to money first and to
/// cents after.
constexpr std::int64_t netCents(std::int64_t amount, std::int64_t discount1,
                                std::int64_t discount2) {
  const std::int64_t first = toCents(dividedHalfUp(amount * discount1, 10'000));
  const std::int64_t left = toCents(amount - first * 100);
  return left - toCents(dividedHalfUp(left * discount2, 100));
}

/// Commission of a line in cents; 0 where anything is missing.
constexpr std::int64_t commissionCents(std::optional<std::int64_t> amount,
                                       std::optional<std::int64_t> discount1,
                                       std::optional<std::int64_t> discount2,
                                       std::optional<std::int64_t> commission) {
  if (!amount || !discount1 || !discount2 || !commission) return 0;
  return toCents(dividedHalfUp(netCents(*amount, *discount1, *discount2) * *commission, 1'000));
}

static_assert(commissionCents(100'500, 1'000, 500, 7'500) == 64);
static_assert(commissionCents(200'500, 1'000, 500, 7'500) == 129);
static_assert(commissionCents(-100'500, 1'000, 500, 7'500) == -64);

}  // namespace korvantes::sample
