#pragma once

#include <string>

#include "runtime/ado/decimal.h"

namespace korvantes::screen {

/// A number as its decimal digits, the form in which it is rounded and written.
struct DecimalDigits {
  bool negative = false;
  std::string digits;  ///< without zeros at either end; empty for 0
  int point = 0;       ///< digits before the decimal point; 0 or less for numbers below 0.1

  /// The double at 15 significant digits. Throws ado::ConversionError for infinities and NaN.
  static DecimalDigits of(double number);
  static DecimalDigits of(const ado::Decimal& number);
  static DecimalDigits of(std::int64_t number);

  /// Rounds half away from zero to the given number of decimals.
  void round(int places);
  /// Number of decimals.
  int places() const;
  /// Digits before the point, without leading zeros: empty below 1.
  std::string whole() const;
  /// The given number of digits after the point.
  std::string fraction(int count) const;

 private:
  void trim();
};

}  // namespace korvantes::screen
