#pragma once

#include <compare>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvantes::ado {

/// An exact decimal number: a whole number of units of 10^-scale.
///
/// 8.59 as money is 85900 units of scale 4. There is no implicit conversion from a double, so that
/// no binary fraction slips into an amount. Comparison is by value: 1.5 equals 1.50.
class Decimal {
 public:
  /// Scale of amounts of money.
  static constexpr int kMoneyScale = 4;
  /// Largest scale a 64-bit unit count can carry.
  static constexpr int kMaxScale = 18;

  constexpr Decimal() = default;
  constexpr Decimal(std::int64_t units, int scale) : units_(units), scale_(scale) {}
  static constexpr Decimal money(std::int64_t units) { return {units, kMoneyScale}; }

  constexpr std::int64_t units() const { return units_; }
  constexpr int scale() const { return scale_; }

  /// Reads "-12.50" (a point, no thousands separators). Empty if the text is anything else or does
  /// not fit 64 bits.
  static std::optional<Decimal> parse(std::string_view text);

  /// The same number at another scale; dropped digits round half away from zero:
  /// 1.005 at 2 is 1.01, -1.005 at 2 is -1.01. Throws ConversionError if it does not fit.
  Decimal rescaled(int scale) const;

  /// a × b / 10^shift at the given scale, rounded once, half away from zero. Throws ConversionError
  /// if it does not fit.
  static Decimal product(const Decimal& a, const Decimal& b, int shift, int scale);
  /// The result has the larger of the two scales. Throw ConversionError if it does not fit.
  friend Decimal operator+(const Decimal& a, const Decimal& b);
  friend Decimal operator-(const Decimal& a, const Decimal& b);
  Decimal& operator+=(const Decimal& other) { return *this = *this + other; }

  /// The nearest double.
  double toDouble() const;

  /// All digits of the scale, with a point: "1234.5600". Never "-0.00".
  std::string text() const;

  friend bool operator==(const Decimal& a, const Decimal& b) { return (a <=> b) == 0; }
  friend std::strong_ordering operator<=>(const Decimal& a, const Decimal& b);

 private:
  std::int64_t units_ = 0;
  int scale_ = 0;
};

/// The decimal number that a double shows when written with 15 significant digits, rounded
/// half away from zero to `places` decimals: 1.005 gives 1.01, 2.925 gives 2.93, -0.005 gives
/// -0.01. Throws ConversionError for infinities, NaN and values beyond 64 bits.
Decimal decimalFromDouble(double value, int places);

}  // namespace korvantes::ado
