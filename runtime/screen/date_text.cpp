#include <array>

#include "runtime/screen/conversions.h"
#include "runtime/screen/letters.h"

namespace korvantes::screen {

bool IsDate(std::string_view text) {
  return toDate(text).has_value();
}

std::optional<ado::Date> toDate(std::string_view text) {
  constexpr std::string_view kBlanks = " \t\r\n";
  const auto first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return std::nullopt;
  text = text.substr(first, text.find_last_not_of(kBlanks) - first + 1);

  // Day, month and year, with their numbers of digits.
  std::array<int, 3> numbers{};
  std::array<std::size_t, 3> lengths{};
  std::size_t part = 0;
  char separator = '\0';
  for (const char character : text) {
    if (isDigit(character)) {
      if (++lengths[part] > 4) return std::nullopt;
      numbers[part] = numbers[part] * 10 + (character - '0');
      continue;
    }
    const bool known = character == '/' || character == '-' || character == '.';
    if (!known || (separator != '\0' && character != separator) || ++part > 2) return std::nullopt;
    separator = character;
  }
  const auto isShort = [&](std::size_t i) { return lengths[i] == 1 || lengths[i] == 2; };
  if (part != 2 || !isShort(0) || !isShort(1)) return std::nullopt;
  int year = numbers[2];
  if (lengths[2] == 2)
    year += year < 30 ? 2000 : 1900;
  else if (lengths[2] != 4)
    return std::nullopt;
  return ado::Date::make(year, numbers[1], numbers[0]);
}

}  // namespace korvantes::screen
