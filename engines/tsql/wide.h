#pragma once

#include <cstdint>
#include <optional>

namespace korvantes::tsql {

/// Intermediate results: products of two unit counts never overflow it.
__extension__ using Wide = __int128;

/// Nothing when the value leaves 64 bits.
inline std::optional<std::int64_t> narrow(Wide value) {
  const auto narrowed = static_cast<std::int64_t>(value);
  return narrowed == value ? std::optional(narrowed) : std::nullopt;
}

/// 10^exponent; nothing outside 0 to 38.
std::optional<Wide> powerOfTen(int exponent);

/// value / divisor (above 0), half away from zero.
Wide divideHalfAway(Wide value, Wide divisor);

/// As rescaleUnits and roundUnits, before the result is narrowed.
std::optional<Wide> rescaleWide(Wide units, int fromScale, int toScale);
std::optional<Wide> roundWide(Wide units, int scale, int places);

}  // namespace korvantes::tsql
