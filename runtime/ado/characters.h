#pragma once

#include <algorithm>
#include <string_view>

namespace korvantes::ado {

template <class Character>
constexpr bool isDigit(Character character) {
  return character >= Character{'0'} && character <= Character{'9'};
}

/// True for the empty text.
constexpr bool allDigits(std::string_view text) {
  return std::ranges::all_of(text, isDigit<char>);
}

/// The text without leading and trailing blanks. Points into the text.
/// @param blanks the characters that count as blank
constexpr std::string_view trimmed(std::string_view text, std::string_view blanks = " ") {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

}  // namespace korvantes::ado
