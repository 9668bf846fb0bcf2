#pragma once

namespace korvantes::screen {

/// Upper case of the letters on a western European keyboard; any other character unchanged.
constexpr char32_t upperCase(char32_t character) {
  const bool latin1 = character >= 0xE0 && character <= 0xFE && character != 0xF7;
  return (character >= U'a' && character <= U'z') || latin1 ? character - 32 : character;
}

/// A letter of that keyboard, or a digit.
constexpr bool isLetterOrDigit(char32_t character) {
  const char32_t upper = upperCase(character);
  return (upper >= U'A' && upper <= U'Z') || (character >= U'0' && character <= U'9') ||
         (upper >= 0xC0 && upper <= 0xDE && upper != 0xD7);
}

}  // namespace korvantes::screen
