#include "outside/ado/text_order.h"

#include <string>

#include "outside/ado/folded_letters.h"
#include "outside/ado/utf8.h"

namespace korvantes::ado {

namespace {

constexpr char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

/// The two levels on which texts are compared, a place for each letter.
struct Keys {
  std::u32string letters;
  std::u32string accents;
};

constexpr bool isMark(char32_t c) {
  return c >= 0x300 && c < 0x370;
}

FoldedLetter foldedAscii(char32_t c) {
  return {static_cast<char16_t>(lowered(static_cast<char>(c))), 0};
}

/// Small letter of the alphabets beyond Latin that fold by a fixed distance.
char32_t loweredBeyondLatin(char32_t c) {
  const bool greek = c >= 0x391 && c <= 0x3A9 && c != 0x3A2;
  const bool cyrillic = c >= 0x410 && c <= 0x42F;
  if (greek || cyrillic) return c + 0x20;
  if (c >= 0x400 && c <= 0x40F) return c + 0x50;
  return c;
}

Keys keysOf(std::string_view text) {
  constexpr char32_t kTilde = 0x303 - 0x2FF;
  Keys keys;
  const std::u32string characters = toCodePoints(text);
  keys.letters.reserve(characters.size());
  keys.accents.reserve(characters.size());
  for (const char32_t c : characters) {
    char32_t letter = 0;
    char32_t accent = 0;
    if (c < 0x80) {
      letter = foldedAscii(c).letter;
    } else if (c >= kFirstFoldedLetter && c - kFirstFoldedLetter < kFoldedLetters.size()) {
      const FoldedLetter& folded = kFoldedLetters[c - kFirstFoldedLetter];
      letter = folded.letter;
      accent = folded.accent;
    } else if (isMark(c) && !keys.letters.empty()) {
      accent = c - 0x2FF;
    } else {
      letter = loweredBeyondLatin(c);
    }
    // Letters are spaced out by two, so that ñ finds room behind n.
    if (letter != 0 || c == 0) {
      keys.letters += letter * 2;
      keys.accents += U'\0';
    }
    if (accent == kTilde && keys.letters.back() == U'n' * 2) {
      ++keys.letters.back();
    } else if (accent != 0) {
      keys.accents.back() = keys.accents.back() * 0x80 + accent;
    }
  }
  return keys;
}

int compareFolded(std::string_view a, std::string_view b) {
  const Keys left = keysOf(a);
  const Keys right = keysOf(b);
  const int letters = left.letters.compare(right.letters);
  return letters != 0 ? letters : left.accents.compare(right.accents);
}

}  // namespace

int compareTexts(std::string_view a, std::string_view b) {
  a = withoutTrailingBlanks(a);
  b = withoutTrailingBlanks(b);
  const std::size_t common = a.size() < b.size() ? a.size() : b.size();
  for (std::size_t i = 0; i < common; ++i) {
    const auto left = static_cast<unsigned char>(a[i]);
    const auto right = static_cast<unsigned char>(b[i]);
    if (left >= 0x80 || right >= 0x80) return compareFolded(a, b);
    // Different bare letters decide, whatever accents follow them.
    const int difference = lowered(a[i]) - lowered(b[i]);
    if (difference != 0) return difference;
  }
  if (a.size() == b.size()) return 0;
  // What is left over may be accents of the letter before, so it counts only when it is ASCII.
  const std::string_view longer = a.size() > b.size() ? a : b;
  if (static_cast<unsigned char>(longer[common]) >= 0x80) return compareFolded(a, b);
  return a.size() > b.size() ? 1 : -1;
}

bool sameName(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (lowered(a[i]) != lowered(b[i])) return false;
  }
  return true;
}

}  // namespace korvantes::ado
