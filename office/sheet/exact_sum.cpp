#include "office/sheet/exact_sum.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace korvantes::office {

namespace {

/// Doubles from here on have no decimals at 15 digits, and some do not fit a Decimal.
constexpr double kFifteenDigits = 1e15;

}  // namespace

void ExactSum::add(const ado::Decimal& number) {
  if (!addExactly(number.units(), number.scale())) inexact_ += number.toDouble();
}

void ExactSum::add(double number) {
  const double size = std::fabs(number);
  if (!(size < kFifteenDigits)) {
    inexact_ += number;
    return;
  }
  const int wholeDigits = size < 1 ? 0 : static_cast<int>(std::floor(std::log10(size))) + 1;
  const int places = std::clamp(15 - wholeDigits, 0, 15);
  add(ado::decimalFromDouble(number, places));
}

bool ExactSum::addExactly(Wide units, int scale) {
  Wide sum = units_;
  const int common = std::max(scale, scale_);
  for (int i = scale_; i < common; ++i)
    if (__builtin_mul_overflow(sum, Wide{10}, &sum)) return false;
  for (int i = scale; i < common; ++i)
    if (__builtin_mul_overflow(units, Wide{10}, &units)) return false;
  if (__builtin_add_overflow(sum, units, &sum)) return false;
  units_ = sum;
  scale_ = common;
  return true;
}

double ExactSum::value() const {
  constexpr Wide kLargest = std::numeric_limits<std::int64_t>::max();
  Wide units = units_;
  int scale = scale_;
  for (; scale > 0 && units % 10 == 0; --scale) units /= 10;
  // Digits far beyond the 15 that a sheet keeps.
  for (; scale > 0 && (units > kLargest || units < -kLargest); --scale) units /= 10;
  if (units > kLargest || units < -kLargest) return static_cast<double>(units) + inexact_;
  return ado::Decimal(static_cast<std::int64_t>(units), scale).toDouble() + inexact_;
}

}  // namespace korvantes::office
