#include "runtime/ado/decimal.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>

#include "runtime/ado/characters.h"
#include "runtime/ado/error.h"

namespace korvantes::ado {

namespace {

__extension__ using Wide = __int128;

constexpr std::int64_t kLargest = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kSmallest = std::numeric_limits<std::int64_t>::min();

Wide powerOfTen(int exponent) {
  Wide power = 1;
  for (; exponent > 0; --exponent) power *= 10;
  return power;
}

Wide dividedHalfAway(Wide number, Wide divisor) {
  const Wide half = divisor / 2;
  return (number < 0 ? number - half : number + half) / divisor;
}

std::int64_t narrowed(Wide units) {
  if (units > kLargest || units < kSmallest) {
    throw ConversionError("El número es demasiado grande para un importe exacto");
  }
  return static_cast<std::int64_t>(units);
}

void requireScale(int scale) {
  if (scale < 0 || scale > Decimal::kMaxScale) {
    throw ConversionError("Un importe exacto tiene entre 0 y 18 decimales");
  }
}

}  // namespace

std::optional<Decimal> Decimal::parse(std::string_view text) {
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
  Wide units = 0;
  int scale = 0;
  bool point = false;
  bool digits = false;
  for (const char c : text) {
    if (c == '.' && !point) {
      point = true;
      continue;
    }
    if (!isDigit(c)) return std::nullopt;
    digits = true;
    if (point && ++scale > kMaxScale) return std::nullopt;
    units = units * 10 + (c - '0');
    if (units > Wide{kLargest} + 1) return std::nullopt;
  }
  if (!digits) return std::nullopt;
  if (negative) units = -units;
  if (units > kLargest) return std::nullopt;
  return Decimal(static_cast<std::int64_t>(units), scale);
}

Decimal Decimal::rescaled(int scale) const {
  if (scale == scale_) return *this;
  requireScale(scale);
  const Wide wide = scale > scale_ ? units_ * powerOfTen(scale - scale_)
                                   : dividedHalfAway(units_, powerOfTen(scale_ - scale));
  return {narrowed(wide), scale};
}

Decimal Decimal::product(const Decimal& a, const Decimal& b, int shift, int scale) {
  requireScale(scale);
  const Wide units = Wide{a.units_} * b.units_;
  const int places = a.scale_ + b.scale_ + shift - scale;
  if (places >= 0) return {narrowed(dividedHalfAway(units, powerOfTen(places))), scale};
  Wide widened = 0;
  if (__builtin_mul_overflow(units, powerOfTen(-places), &widened)) widened = Wide{kLargest} + 1;
  return {narrowed(widened), scale};
}

Decimal operator+(const Decimal& a, const Decimal& b) {
  const int scale = std::max(a.scale_, b.scale_);
  return {narrowed(Wide{a.rescaled(scale).units_} + b.rescaled(scale).units_), scale};
}

Decimal operator-(const Decimal& a, const Decimal& b) {
  const int scale = std::max(a.scale_, b.scale_);
  return {narrowed(Wide{a.rescaled(scale).units_} - b.rescaled(scale).units_), scale};
}

double Decimal::toDouble() const {
  constexpr std::array<double, kMaxScale + 1> kPowers{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,
                                                      1e7,  1e8,  1e9,  1e10, 1e11, 1e12, 1e13,
                                                      1e14, 1e15, 1e16, 1e17, 1e18};
  constexpr std::int64_t kExact = std::int64_t{1} << 53U;
  // Both operands are exact doubles here, so the quotient is the nearest one.
  if (units_ <= kExact && units_ >= -kExact) {
    return static_cast<double>(units_) / kPowers[static_cast<std::size_t>(scale_)];
  }
  const std::string digits = text();
  double value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  return value;
}

std::string Decimal::text() const {
  // Negated as unsigned: the smallest number has no positive counterpart.
  const auto raw = static_cast<std::uint64_t>(units_);
  std::string digits = std::to_string(units_ < 0 ? 0 - raw : raw);
  const auto places = static_cast<std::size_t>(scale_);
  if (digits.size() <= places) digits.insert(0, places + 1 - digits.size(), '0');
  if (places > 0) digits.insert(digits.size() - places, 1, '.');
  if (units_ < 0) digits.insert(0, 1, '-');
  return digits;
}

std::strong_ordering operator<=>(const Decimal& a, const Decimal& b) {
  if (a.scale_ == b.scale_) return a.units_ <=> b.units_;
  const int scale = a.scale_ > b.scale_ ? a.scale_ : b.scale_;
  const Wide left = a.units_ * powerOfTen(scale - a.scale_);
  const Wide right = b.units_ * powerOfTen(scale - b.scale_);
  if (left == right) return std::strong_ordering::equal;
  return left < right ? std::strong_ordering::less : std::strong_ordering::greater;
}

Decimal decimalFromDouble(double value, int places) {
  requireScale(places);
  if (!std::isfinite(value)) throw ConversionError("El valor no es un número");
  // "-1.00500000000000e+00": a digit, the point, 14 digits, the exponent.
  std::array<char, 40> buffer{};
  const char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                        std::chars_format::scientific, 14)
                              .ptr;
  Wide digits = 0;
  const char* at = buffer.data();
  for (; *at != 'e'; ++at) {
    if (isDigit(*at)) digits = digits * 10 + (*at - '0');
  }
  ++at;
  if (*at == '+') ++at;
  int exponent = 0;
  std::from_chars(at, end, exponent);
  if (value < 0) digits = -digits;

  const int shift = exponent - 14 + places;
  constexpr int kDigits = 15;
  if (digits == 0 || shift < -kDigits) return {0, places};
  if (shift < 0) return {narrowed(dividedHalfAway(digits, powerOfTen(-shift))), places};
  // 15 digits and more than 4 zeros never fit.
  if (shift > 4) throw ConversionError("El número es demasiado grande para un importe exacto");
  return {narrowed(digits * powerOfTen(shift)), places};
}

}  // namespace korvantes::ado
