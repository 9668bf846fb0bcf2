#include "office/sheet/sheet_text.h"

#include <algorithm>
#include <string_view>

#include "runtime/ado/utf8.h"

namespace korvantes::office {

namespace {

constexpr std::size_t kLongestCell = 32767;
constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kEllipsis = 0x2026;

bool allowed(char32_t c) {
  return c != 0 && c != 0xFFFE && c != 0xFFFF;
}

std::size_t units(char32_t c) {
  return c > 0xFFFF ? 2 : 1;
}

/// "_x0041_" is how a workbook writes a character by its number.
bool isNumberedCharacter(std::u32string_view text) {
  constexpr std::size_t kLength = 7;
  return text.size() >= kLength && text.substr(0, 2) == U"_x" && text[kLength - 1] == U'_' &&
         text.substr(2, 4).find_first_not_of(U"0123456789abcdefABCDEF") == text.npos;
}

}  // namespace

std::string cellText(const std::string& text) {
  const std::u32string characters = ado::toCodePoints(text);
  std::u32string kept;
  std::size_t length = 0;
  for (std::size_t i = 0; i < characters.size(); ++i) {
    const char32_t c = allowed(characters[i]) ? characters[i] : kReplacement;
    length += units(c);
    const bool last = i + 1 == characters.size();
    if (length > kLongestCell || (length == kLongestCell && !last)) {
      kept += kEllipsis;
      break;
    }
    kept += c;
    if (isNumberedCharacter(std::u32string_view(characters).substr(i))) kept += U"x005F_";
  }
  return ado::toUtf8(kept);
}

std::string fileNameFor(const std::string& title) {
  constexpr std::size_t kLongestName = 200;  // bytes; file systems take 255
  constexpr std::u32string_view kRefused = U"/\\:*?\"<>|";
  std::u32string characters = ado::toCodePoints(title);
  std::replace_if(
      characters.begin(), characters.end(),
      [&](char32_t c) { return c < U' ' || c == 0x7F || kRefused.find(c) != kRefused.npos; }, U'-');
  const auto atEdge = [](char32_t c) { return c == U' ' || c == U'.'; };
  while (ado::toUtf8(characters).size() > kLongestName) characters.pop_back();
  while (!characters.empty() && atEdge(characters.back())) characters.pop_back();
  const auto first = std::find_if_not(characters.begin(), characters.end(), atEdge);
  characters.erase(characters.begin(), first);
  if (characters.empty()) characters = U"Listado";
  return ado::toUtf8(characters) + ".xlsx";
}

}  // namespace korvantes::office
