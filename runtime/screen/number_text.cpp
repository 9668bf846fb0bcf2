#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <system_error>

#include "runtime/ado/characters.h"
#include "runtime/ado/error.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/decimal_digits.h"

namespace korvantes::screen {

namespace {

constexpr std::string_view kBlanks = " \t\r\n";

using ado::isDigit;

/// Reads a number from the left and rewrites it in the form that std::from_chars expects.
class NumberReader {
 public:
  NumberReader(std::string_view text, char decimal, char thousands)
      : rest_(text), decimal_(decimal), thousands_(thousands) {}

  /// False if the text does not begin with a number.
  bool read() {
    if (take("+-")) plain_ += taken_ == '-' ? "-" : "";
    const std::size_t wholeDigits = whole();
    std::size_t decimals = 0;
    if (takes(decimal_)) {
      plain_ += '.';
      decimals = digits();
    }
    if (wholeDigits + decimals == 0) return false;
    if (decimals == 0) plain_ += ".0";
    exponent();
    return true;
  }
  bool atEnd() const { return rest_.empty(); }
  std::optional<double> value() const {
    const std::string text = plain();
    double number = 0;
    const auto result = std::from_chars(text.data(), text.data() + text.size(), number);
    if (result.ec != std::errc()) return std::nullopt;
    return number;
  }
  /// Empty if it does not fit.
  std::optional<ado::Decimal> exact() const {
    constexpr int kLargestExponent = 30;
    const std::string text = plain();
    const std::size_t mark = text.find('e');
    std::optional<ado::Decimal> number = ado::Decimal::parse(text.substr(0, mark));
    if (!number || mark == std::string::npos) return number;
    int exponent = 0;
    const auto read = std::from_chars(text.data() + mark + 1, text.data() + text.size(), exponent);
    if (read.ec != std::errc() || std::abs(exponent) > kLargestExponent) return std::nullopt;
    const int scale = std::clamp(number->scale() - exponent, 0, ado::Decimal::kMaxScale);
    return ado::Decimal::product(*number, ado::Decimal(1, 0), -exponent, scale);
  }

 private:
  std::string plain() const {
    // "12." was completed to "12..0".
    std::string text = plain_;
    if (const auto twice = text.find(".."); twice != std::string::npos) text.erase(twice, 1);
    return text;
  }
  bool takes(char wanted) { return take({&wanted, 1}); }
  bool take(std::string_view any) {
    if (rest_.empty() || any.find(rest_.front()) == std::string_view::npos) return false;
    taken_ = rest_.front();
    rest_.remove_prefix(1);
    return true;
  }
  std::size_t digits() {
    std::size_t count = 0;
    for (; !rest_.empty() && isDigit(rest_.front()); rest_.remove_prefix(1), ++count)
      plain_ += rest_.front();
    return count;
  }
  /// Digits, or groups of three after a first one of up to three.
  std::size_t whole() {
    std::size_t count = digits();
    // "0.125" is not a grouped number but a mistyped separator.
    if (count == 0 || rest_.empty() || plain_[plain_.size() - count] == '0') return count;
    while (groupFollows()) {
      if (count > 3 && !grouped_) break;
      grouped_ = true;
      rest_.remove_prefix(1);
      count += digits();
    }
    return count;
  }
  bool groupFollows() const {
    if (thousands_ == '\0' || rest_.size() < 4 || rest_[0] != thousands_) return false;
    return isDigit(rest_[1]) && isDigit(rest_[2]) && isDigit(rest_[3]) &&
           (rest_.size() == 4 || !isDigit(rest_[4]));
  }
  void exponent() {
    const std::string_view before = rest_;
    const std::string mantissa = plain_;
    if (!take("eE")) return;
    plain_ += 'e';
    if (take("+-")) plain_ += taken_ == '-' ? "-" : "";
    if (digits() > 0) return;
    rest_ = before;
    plain_ = mantissa;
  }

  std::string_view rest_;
  char decimal_, thousands_;
  char taken_ = '\0';
  bool grouped_ = false;
  std::string plain_;
};

[[noreturn]] void refuse(std::string_view text) {
  throw ado::ConversionError("«" + std::string(text) + "» no es un número");
}

[[noreturn]] void refuseTooLarge(std::string_view text) {
  throw ado::ConversionError("«" + std::string(text) + "» es un número demasiado grande");
}

NumberReader readerOf(std::string_view text, const Regional& regional) {
  return {ado::trimmed(text, kBlanks), regional.decimalSeparator, regional.thousandsSeparator};
}

/// The general form: with an exponent from 1E+15 on, and where plain writing would need more than
/// 15 decimals.
std::string general(const DecimalDigits& number, const Regional& regional, bool mayHaveExponent) {
  constexpr int kPlainDigits = 15;
  std::string text = number.negative ? "-" : "";
  const int places = number.places();
  if (mayHaveExponent && (number.point > kPlainDigits || places > kPlainDigits)) {
    text += number.digits[0];
    if (number.digits.size() > 1) text += regional.decimalSeparator + number.digits.substr(1);
    const int exponent = number.point - 1;
    const std::string size = std::to_string(std::abs(exponent));
    return text + (exponent < 0 ? "E-" : "E+") + (size.size() < 2 ? "0" : "") + size;
  }
  const std::string whole = number.whole();
  text += whole.empty() ? "0" : whole;
  if (places > 0) text += regional.decimalSeparator + number.fraction(places);
  return text;
}

}  // namespace

bool IsNumeric(std::string_view text, const Regional& regional) {
  return parseNumber(text, regional).has_value();
}

std::optional<double> parseNumber(std::string_view text, const Regional& regional) {
  NumberReader reader = readerOf(text, regional);
  if (!reader.read() || !reader.atEnd()) return std::nullopt;
  return reader.value();
}

double CDbl(std::string_view text, const Regional& regional) {
  const std::optional<double> number = parseNumber(text, regional);
  if (!number) refuse(text);
  return *number;
}

ado::Decimal CDec(std::string_view text, const Regional& regional) {
  NumberReader reader = readerOf(text, regional);
  if (!reader.read() || !reader.atEnd()) refuse(text);
  const std::optional<ado::Decimal> number = reader.exact();
  if (!number) refuseTooLarge(text);
  return *number;
}

int CLng(std::string_view text, const Regional& regional) {
  // The default rounding mode rounds halves to even.
  const double number = std::nearbyint(CDbl(text, regional));
  if (number < std::numeric_limits<int>::min() || number > std::numeric_limits<int>::max())
    refuseTooLarge(text);
  return static_cast<int>(number);
}

double Val(std::string_view text) {
  NumberReader reader(ado::trimmed(text, kBlanks), '.', '\0');
  return reader.read() ? reader.value().value_or(0) : 0;
}

std::string CStr(double number, const Regional& regional) {
  return general(DecimalDigits::of(number), regional, true);
}

std::string CStr(const ado::Variant& value, const Regional& regional) {
  using Kind = ado::Variant::Kind;
  switch (value.kind()) {
    case Kind::Null:
      return {};
    case Kind::Boolean:
      return value.boolean() ? "Verdadero" : "Falso";
    case Kind::Whole:
      return std::to_string(value.whole());
    case Kind::Double:
      return CStr(value.asDouble(), regional);
    case Kind::Decimal:
      return general(DecimalDigits::of(value.decimal()), regional, false);
    case Kind::Date:
      return value.date().dayFirst();
    case Kind::Text:
      return value.text();
    case Kind::Bytes:
      break;
  }
  throw ado::ConversionError("Un dato binario no se puede mostrar como texto");
}

}  // namespace korvantes::screen
