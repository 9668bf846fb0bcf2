#include "engines/tsql/text_values.h"

#include <limits>

#include "engines/tsql/problem.h"
#include "engines/tsql/runtime.h"
#include "engines/tsql/wide.h"
#include "runtime/ado/date.h"
#include "runtime/ado/decimal.h"
#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"

namespace korvantes::tsql {

namespace {

std::string_view withoutBlanks(std::string_view text) {
  while (text.starts_with(' ')) text.remove_prefix(1);
  while (text.ends_with(' ')) text.remove_suffix(1);
  return text;
}

/// Number with `scale` decimals, rounding further digits; empty if the text is not a number.
std::optional<Wide> parseUnits(std::string_view text, int scale, bool pointAllowed) {
  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  Wide units = 0;
  int decimals = 0;
  bool point = false;
  bool digits = false;
  for (const char c : text) {
    if (c == '.' && pointAllowed && !point) {
      point = true;
      continue;
    }
    if (c < '0' || c > '9') return std::nullopt;
    digits = true;
    if (point && decimals == scale + 1) continue;  // one digit beyond the scale decides
    if (point) ++decimals;
    units = units * 10 + (c - '0');
    if (units > Wide{std::numeric_limits<std::int64_t>::max()} * 10) {
      refuse(Problem::Overflow, {});
    }
  }
  if (!digits) return std::nullopt;
  const auto scaled = rescaleWide(negative ? -units : units, decimals, scale);
  if (!scaled) refuse(Problem::Overflow, {});
  return scaled;
}

}  // namespace

std::optional<std::int64_t> asInt(std::int64_t value) {
  if (value < std::numeric_limits<std::int32_t>::min() ||
      value > std::numeric_limits<std::int32_t>::max()) {
    return std::nullopt;
  }
  return value;
}

bool hasDigits(std::int64_t value, int digits) {
  if (digits > kMaxDigits) return true;  // more than 64 bits hold
  const auto limit = powerOfTen(digits);
  return limit && Wide{value} < *limit && Wide{value} > -*limit;
}

std::int64_t unitsFromText(std::string_view text, const Type& type) {
  const auto digits = withoutBlanks(text);
  if (digits.empty() && type.kind != TypeKind::Decimal) return 0;
  const bool whole = type.kind == TypeKind::Int || type.kind == TypeKind::Bit;
  const auto wide = parseUnits(digits, type.scale, !whole);
  if (!wide) refuse(Problem::NoNumber, {}, text);
  const auto units = narrow(*wide);
  if (!units || (type.kind == TypeKind::Int && !asInt(*units)) ||
      (type.kind == TypeKind::Decimal && !hasDigits(*units, type.precision))) {
    refuse(Problem::NumberTooLarge, {}, digits, nameOf(type));
  }
  if (type.kind == TypeKind::Bit) return *units != 0 ? 1 : 0;
  return *units;
}

std::string isoFromText(std::string_view text) {
  auto date = ado::Date::parseDayFirst(text);
  if (!date) date = ado::Date::parseIso(text);
  if (!date) refuse(Problem::NoDate, {}, text);
  return date->iso();
}

std::string textFromUnits(std::int64_t units, const Type& from, const Type& target) {
  std::string text;
  if (from.kind == TypeKind::Money) {
    const auto cents = rescaleUnits(units, kMoneyScale, 2);
    text = ado::Decimal(cents.value_or(0), 2).text();
  } else {
    text = ado::Decimal(units, from.scale).text();
  }
  if (target.length > 0 && text.size() > static_cast<std::size_t>(target.length)) {
    if (from.kind != TypeKind::Int && from.kind != TypeKind::Bit) {
      refuse(Problem::NumberTooLarge, {}, text, nameOf(target));
    }
    text = "*";
  }
  return fixedText(text, target);
}

std::string fixedText(std::string_view text, const Type& target) {
  const auto length = static_cast<std::size_t>(target.length);
  std::string fixed(length == 0 ? text : ado::firstCharacters(text, length));
  if (target.kind == TypeKind::Char) {
    const auto count = ado::characterCount(fixed);
    if (count < length) fixed.append(length - count, ' ');
  }
  return fixed;
}

std::string storedText(std::string_view text, const Type& target, std::string_view column) {
  const auto length = static_cast<std::size_t>(target.length);
  // No more bytes than characters allowed, so there is no need to count.
  if (length != 0 && text.size() > length) {
    const auto rest = text.substr(ado::byteOffset(text, length));
    if (rest.find_first_not_of(' ') != std::string_view::npos) {
      refuse(Problem::TextTooLong, {}, column);
    }
  }
  return fixedText(text, target);
}

namespace {

/// One set of a pattern; `position` is after its '[' and moves past its ']'.
bool inSet(char32_t character, std::u32string_view pattern, std::size_t& position) {
  const bool negated = position < pattern.size() && pattern[position] == U'^';
  if (negated) ++position;
  bool found = false;
  while (position < pattern.size() && pattern[position] != U']') {
    const char32_t low = pattern[position++];
    char32_t high = low;
    if (position + 1 < pattern.size() && pattern[position] == U'-' &&
        pattern[position + 1] != U']') {
      high = pattern[position + 1];
      position += 2;
    }
    found = found || (character >= low && character <= high);
  }
  if (position < pattern.size()) ++position;
  return found != negated;
}

/// Matches one element of the pattern other than '%'. Returns the position of the next element;
/// empty if the character does not match.
std::optional<std::size_t> matchOne(char32_t character, std::u32string_view pattern,
                                    std::size_t position) {
  const char32_t element = pattern[position++];
  if (element == U'[') {
    if (!inSet(character, pattern, position)) return std::nullopt;
    return position;
  }
  if (element != U'_' && element != character) return std::nullopt;
  return position;
}

bool isLetterPair(char32_t c) {
  return c >= 0x100 && c <= 0x17F;
}

char32_t upperOf(char32_t c) {
  if (c >= U'a' && c <= U'z') return c - 32;
  if (c >= 0xE0 && c <= 0xFE && c != 0xF7) return c - 32;
  if (c == 0xFF) return 0x178;
  if (!isLetterPair(c) || c == 0x131 || c == 0x138 || c == 0x149 || c == 0x17F) return c;
  const bool oddIsUpper = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
  return (c % 2 == 1) != oddIsUpper ? c - 1 : c;
}

char32_t lowerOf(char32_t c) {
  if (c >= U'A' && c <= U'Z') return c + 32;
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
  if (c == 0x178) return 0xFF;
  if (!isLetterPair(c) || c == 0x130 || c == 0x138 || c == 0x149 || c == 0x17F) return c;
  const bool oddIsUpper = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
  return (c % 2 == 0) != oddIsUpper ? c + 1 : c;
}

std::string mapped(std::string_view text, char32_t (*change)(char32_t)) {
  auto characters = ado::toCodePoints(text);
  for (auto& c : characters) c = change(c);
  return ado::toUtf8(characters);
}

std::u32string folded(std::string_view text) {
  auto characters = ado::toCodePoints(text);
  for (auto& c : characters) c = lowerOf(c);
  return characters;
}

}  // namespace

bool matchesLike(std::string_view text, std::string_view pattern) {
  const auto characters = folded(text);
  const auto elements = folded(pattern);
  std::size_t at = 0;
  std::size_t element = 0;
  // The last % and how far it reaches: where to try again from.
  std::optional<std::size_t> behindPercent;
  std::size_t retry = 0;
  const auto textEnd = characters.find_last_not_of(U' ') + 1;
  while (at < characters.size()) {
    // Blanks at the end of the text do not count where the pattern does not ask for them.
    if (element == elements.size() && at >= textEnd) return true;
    if (element < elements.size() && elements[element] == U'%') {
      behindPercent = ++element;
      retry = at;
      continue;
    }
    const auto next = element < elements.size() ? matchOne(characters[at], elements, element)
                                                : std::optional<std::size_t>{};
    if (next) {
      element = *next;
      ++at;
    } else if (behindPercent) {
      element = *behindPercent;
      at = ++retry;
    } else {
      return false;
    }
  }
  while (element < elements.size() && elements[element] == U'%') ++element;
  return element == elements.size();
}

std::string upperCase(std::string_view text) {
  return mapped(text, upperOf);
}
std::string lowerCase(std::string_view text) {
  return mapped(text, lowerOf);
}

}  // namespace korvantes::tsql
