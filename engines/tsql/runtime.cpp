#include "engines/tsql/runtime.h"

#include <array>

#include "engines/tsql/wide.h"

namespace korvantes::tsql {

namespace {

constexpr int kLargestPower = 38;

constexpr auto kPowersOfTen = [] {
  std::array<Wide, kLargestPower + 1> powers{1};
  for (std::size_t i = 1; i < powers.size(); ++i) powers[i] = powers[i - 1] * 10;
  return powers;
}();

template <typename Number>
Number quotientHalfAway(Number value, Number divisor) {
  const Number quotient = value / divisor;
  const Number rest = value % divisor;
  const Number magnitude = rest < 0 ? -rest : rest;
  if (magnitude < divisor - magnitude) return quotient;
  return value < 0 ? quotient - 1 : quotient + 1;
}

}  // namespace

std::optional<Wide> powerOfTen(int exponent) {
  if (exponent < 0 || exponent > kLargestPower) return std::nullopt;
  return kPowersOfTen[static_cast<std::size_t>(exponent)];
}

Wide divideHalfAway(Wide value, Wide divisor) {
  // Nearly all numbers fit 64 bits, and there a division is many times faster.
  const auto narrowValue = narrow(value);
  const auto narrowDivisor = narrow(divisor);
  if (narrowValue && narrowDivisor) return quotientHalfAway(*narrowValue, *narrowDivisor);
  return quotientHalfAway(value, divisor);
}

std::optional<Wide> rescaleWide(Wide units, int fromScale, int toScale) {
  const auto power = powerOfTen(toScale > fromScale ? toScale - fromScale : fromScale - toScale);
  if (toScale <= fromScale) return power ? divideHalfAway(units, *power) : Wide{0};
  Wide result = 0;
  if (!power || __builtin_mul_overflow(units, *power, &result)) return std::nullopt;
  return result;
}

std::optional<Wide> roundWide(Wide units, int scale, int places) {
  if (places >= scale) return units;
  const auto power = powerOfTen(scale - places);
  if (!power) return Wide{0};
  Wide result = 0;
  if (__builtin_mul_overflow(divideHalfAway(units, *power), *power, &result)) return std::nullopt;
  return result;
}

std::optional<std::int64_t> addUnits(std::int64_t a, std::int64_t b) {
  return narrow(Wide{a} + Wide{b});
}

std::optional<std::int64_t> subtractUnits(std::int64_t a, std::int64_t b) {
  return narrow(Wide{a} - Wide{b});
}

std::optional<std::int64_t> multiplyUnits(std::int64_t a, std::int64_t b) {
  return narrow(Wide{a} * Wide{b});
}

std::optional<std::int64_t> rescaleUnits(std::int64_t units, int fromScale, int toScale) {
  const auto result = rescaleWide(units, fromScale, toScale);
  return result ? narrow(*result) : std::nullopt;
}

std::optional<std::int64_t> roundUnits(std::int64_t units, int scale, int places) {
  const auto result = roundWide(units, scale, places);
  return result ? narrow(*result) : std::nullopt;
}

std::optional<std::int64_t> divideUnits(std::int64_t a, std::int64_t b, int shift) {
  const auto power = powerOfTen(shift < 0 ? -shift : shift);
  if (b == 0 || !power) return std::nullopt;
  Wide dividend = a;
  Wide divisor = b;
  if (__builtin_mul_overflow(shift < 0 ? divisor : dividend, *power,
                             shift < 0 ? &divisor : &dividend)) {
    return std::nullopt;
  }
  return narrow(dividend / divisor);
}

}  // namespace korvantes::tsql
