#include <array>

#include "runtime/ado/characters.h"
#include "runtime/screen/conversions.h"

namespace korvantes::screen {

bool IsDate(std::string_view text) {
  return toDate(text).has_value();
}

std::optional<ado::Date> toDate(std::string_view text) {
  text = ado::trimmed(text, " \t\r\n");

  // Day, month and year, with their numbers of digits.
  std::array<int, 3> numbers{};
  std::array<std::size_t, 3> lengths{};
  std::size_t part = 0;
  char separator = '\0';
  for (const char character : text) {
    if (ado::isDigit(character)) {
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
