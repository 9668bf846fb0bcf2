#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

namespace korvantes::tsql {

/// Intermediate results: products of two unit counts never overflow it.
__extension__ using Wide = __int128;

/// Empty if the value does not fit 64 bits.
inline std::optional<std::int64_t> narrow(Wide value) {
  const auto narrowed = static_cast<std::int64_t>(value);
  return narrowed == value ? std::optional(narrowed) : std::nullopt;
}

namespace inner {

inline constexpr int kLargestPower = 38;

inline constexpr auto kPowersOfTen = [] {
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

}  // namespace inner

/// 10^exponent; empty outside 0 to 38.
inline std::optional<Wide> powerOfTen(int exponent) {
  if (exponent < 0 || exponent > inner::kLargestPower) return std::nullopt;
  return inner::kPowersOfTen[static_cast<std::size_t>(exponent)];
}

/// value / divisor (above 0), half away from zero.
inline Wide divideHalfAway(Wide value, Wide divisor) {
  // Nearly all numbers fit 64 bits, where division is many times faster.
  const auto narrowValue = narrow(value);
  const auto narrowDivisor = narrow(divisor);
  if (narrowValue && narrowDivisor) return inner::quotientHalfAway(*narrowValue, *narrowDivisor);
  return inner::quotientHalfAway(value, divisor);
}

/// As rescaleUnits and roundUnits, before the result is narrowed.
inline std::optional<Wide> rescaleWide(Wide units, int fromScale, int toScale) {
  const auto power = powerOfTen(toScale > fromScale ? toScale - fromScale : fromScale - toScale);
  if (toScale <= fromScale) return power ? divideHalfAway(units, *power) : Wide{0};
  Wide result = 0;
  if (!power || __builtin_mul_overflow(units, *power, &result)) return std::nullopt;
  return result;
}

inline std::optional<Wide> roundWide(Wide units, int scale, int places) {
  if (places >= scale) return units;
  const auto power = powerOfTen(scale - places);
  if (!power) return Wide{0};
  Wide result = 0;
  if (__builtin_mul_overflow(divideHalfAway(units, *power), *power, &result)) return std::nullopt;
  return result;
}

}  // namespace korvantes::tsql
