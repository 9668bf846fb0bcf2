#include "engines/tsql/runtime.h"

#include "engines/tsql/wide.h"

namespace korvantes::tsql {

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
