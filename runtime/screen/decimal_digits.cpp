#include "runtime/screen/decimal_digits.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "runtime/ado/error.h"

namespace korvantes::screen {

DecimalDigits DecimalDigits::of(double number) {
  if (!std::isfinite(number)) throw ado::ConversionError("El resultado no es un número");
  constexpr int kSignificant = 15;
  std::array<char, 40> text{};  // "-d.dddddddddddddde-308"
  const char* const end = std::to_chars(text.data(), text.data() + text.size(), number,
                                        std::chars_format::scientific, kSignificant - 1)
                              .ptr;
  const char* const exponentMark = std::find(text.data(), const_cast<char*>(end), 'e');
  DecimalDigits result;
  result.negative = std::signbit(number);
  for (const char* c = text.data(); c != exponentMark; ++c)
    if (*c != '-' && *c != '.') result.digits += *c;
  const char* exponentStart = exponentMark + 1;
  if (*exponentStart == '+') ++exponentStart;
  int exponent = 0;
  std::from_chars(exponentStart, end, exponent);
  result.point = exponent + 1;
  result.trim();
  return result;
}

DecimalDigits DecimalDigits::of(const ado::Decimal& number) {
  DecimalDigits result = of(number.units());
  if (!result.digits.empty()) result.point -= number.scale();
  return result;
}

DecimalDigits DecimalDigits::of(std::int64_t number) {
  DecimalDigits result;
  result.digits = std::to_string(number);
  result.negative = number < 0;
  if (result.negative) result.digits.erase(0, 1);
  result.point = static_cast<int>(result.digits.size());
  result.trim();
  return result;
}

void DecimalDigits::round(int places) {
  const int kept = point + places;
  if (kept >= static_cast<int>(digits.size())) return;
  const bool up = kept >= 0 && digits[static_cast<std::size_t>(kept)] >= '5';
  digits.resize(static_cast<std::size_t>(std::max(kept, 0)));
  if (up) {
    // 9.99 becomes 10.0: the nines become trailing zeros, which are dropped.
    while (!digits.empty() && digits.back() == '9') digits.pop_back();
    if (digits.empty()) {
      digits = "1";
      ++point;
    } else {
      ++digits.back();
    }
  }
  trim();
}

int DecimalDigits::places() const {
  return std::max(static_cast<int>(digits.size()) - point, 0);
}

std::string DecimalDigits::whole() const {
  if (point <= 0) return {};
  std::string result = digits.substr(0, static_cast<std::size_t>(point));
  result.resize(static_cast<std::size_t>(point), '0');
  return result;
}

std::string DecimalDigits::fraction(int count) const {
  std::string result(static_cast<std::size_t>(std::max(-point, 0)), '0');
  if (point < static_cast<int>(digits.size()))
    result += digits.substr(static_cast<std::size_t>(std::max(point, 0)));
  result.resize(static_cast<std::size_t>(count), '0');
  return result;
}

void DecimalDigits::trim() {
  const auto first = std::min(digits.find_first_not_of('0'), digits.size());
  digits.erase(0, first);
  point -= static_cast<int>(first);
  while (!digits.empty() && digits.back() == '0') digits.pop_back();
  if (!digits.empty()) return;
  point = 0;
  negative = false;
}

}  // namespace korvantes::screen
