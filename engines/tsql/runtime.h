#pragma once

#include <cstdint>
#include <optional>

namespace korvantes::tsql {

/// The arithmetic that compiled statements use: whole numbers of units with a 128-bit intermediate.
/// An engine registers these functions under the names its writer uses (engines/tsql/functions.h).
/// Empty if a result does not fit 64 bits or a divisor is zero; the engine turns that into the
/// server's error.

/// a + b, a - b, a * b.
std::optional<std::int64_t> addUnits(std::int64_t a, std::int64_t b);
std::optional<std::int64_t> subtractUnits(std::int64_t a, std::int64_t b);
std::optional<std::int64_t> multiplyUnits(std::int64_t a, std::int64_t b);

/// units x 10^(toScale - fromScale), half away from zero if digits are dropped.
std::optional<std::int64_t> rescaleUnits(std::int64_t units, int fromScale, int toScale);

/// ROUND(x, places) of a number of scale `scale`, half away from zero, at the same scale.
std::optional<std::int64_t> roundUnits(std::int64_t units, int scale, int places);

/// a x 10^shift / b, truncated towards zero.
std::optional<std::int64_t> divideUnits(std::int64_t a, std::int64_t b, int shift);

}  // namespace korvantes::tsql
