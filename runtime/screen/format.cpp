#include <algorithm>

#include "runtime/screen/conversions.h"
#include "runtime/screen/decimal_digits.h"

namespace korvantes::screen {

namespace {

/// The parts of a mask for numbers.
struct NumberMask {
  std::string_view before, after;  ///< literal text
  int leastWhole = 0;              ///< minimum number of digits before the point
  int leastPlaces = 0, mostPlaces = 0;
  bool grouped = false;

  explicit NumberMask(std::string_view mask) {
    constexpr std::string_view kPlaces = "0#.,";
    const auto first = std::min(mask.find_first_of("0#."), mask.size());
    const auto last = first < mask.size() ? mask.find_last_of(kPlaces) + 1 : first;
    before = mask.substr(0, first);
    after = mask.substr(last);
    const std::string_view places = mask.substr(first, last - first);
    const auto point = std::min(places.find('.'), places.size());
    for (const char place : places.substr(0, point)) {
      leastWhole += place == '0' ? 1 : 0;
      grouped = grouped || place == ',';
    }
    for (const char place : places.substr(std::min(point + 1, places.size()))) {
      if (place != '0' && place != '#') continue;
      ++mostPlaces;
      if (place == '0') leastPlaces = mostPlaces;
    }
  }
};

std::string withSeparators(const std::string& digits, char separator) {
  std::string grouped;
  for (std::size_t i = 0; i < digits.size(); ++i) {
    if (i > 0 && (digits.size() - i) % 3 == 0) grouped += separator;
    grouped += digits[i];
  }
  return grouped;
}

std::string formatNumber(DecimalDigits number, std::string_view maskText,
                         const Regional& regional) {
  const NumberMask mask(maskText);
  number.round(mask.mostPlaces);
  std::string whole = number.whole();
  const auto least = static_cast<std::size_t>(mask.leastWhole);
  if (whole.size() < least) whole.insert(0, least - whole.size(), '0');
  if (mask.grouped) whole = withSeparators(whole, regional.thousandsSeparator);
  std::string text = number.negative ? "-" : "";
  text.append(mask.before).append(whole);
  // A mask such as "0.##" leaves no separator if no decimals follow it.
  const int places = std::max(number.places(), mask.leastPlaces);
  if (places > 0) text += regional.decimalSeparator + number.fraction(places);
  return text.append(mask.after);
}

std::string padded(int number, std::size_t digits) {
  const std::string text = std::to_string(number);
  return text.size() < digits ? std::string(digits - text.size(), '0') + text : text;
}

/// Runs of d, m and y become the parts of the date, everything else is copied.
std::string formatDate(const ado::Date& date, std::string_view mask) {
  std::string text;
  while (!mask.empty()) {
    const char letter = static_cast<char>(mask[0] | 0x20);
    const bool part = letter == 'd' || letter == 'm' || letter == 'y';
    std::size_t length = 1;
    while (part && length < mask.size() && (mask[length] | 0x20) == letter) ++length;
    const std::size_t digits = std::min<std::size_t>(length, 2);
    if (letter == 'd')
      text += padded(date.day, digits);
    else if (letter == 'm')
      text += padded(date.month, digits);
    else if (letter == 'y')
      text += length > 2 ? padded(date.year, 4) : padded(date.year % 100, 2);
    else
      text += mask[0];
    mask.remove_prefix(length);
  }
  return text;
}

}  // namespace

std::string Format(const ado::Variant& value, std::string_view mask, const Regional& regional) {
  using Kind = ado::Variant::Kind;
  if (mask.empty()) return CStr(value, regional);
  switch (value.kind()) {
    case Kind::Whole:
      return formatNumber(DecimalDigits::of(value.whole()), mask, regional);
    case Kind::Double:
      return formatNumber(DecimalDigits::of(value.asDouble()), mask, regional);
    case Kind::Decimal:
      return formatNumber(DecimalDigits::of(value.decimal()), mask, regional);
    case Kind::Date:
      return formatDate(value.date(), mask);
    default:
      return CStr(value, regional);
  }
}

}  // namespace korvantes::screen
