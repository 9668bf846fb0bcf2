#include "runtime/ado/text_order.h"

#include "runtime/ado/folded_letters.h"
#include "runtime/ado/utf8.h"

namespace korvantes::ado {

namespace {

constexpr char lowered(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c + ('a' - 'A')) : c;
}

std::string_view withoutTrailingBlanks(std::string_view text) {
  while (!text.empty() && text.back() == ' ') text.remove_suffix(1);
  return text;
}

constexpr bool isMark(char32_t c) {
  return c >= 0x300 && c < 0x370;
}

FoldedLetter foldedAscii(char32_t c) {
  return {static_cast<char16_t>(lowered(static_cast<char>(c))), 0};
}

/// Lower case in alphabets beyond Latin where it is at a fixed distance.
char32_t loweredBeyondLatin(char32_t c) {
  const bool greek = c >= 0x391 && c <= 0x3A9 && c != 0x3A2;
  const bool cyrillic = c >= 0x410 && c <= 0x42F;
  if (greek || cyrillic) return c + 0x20;
  if (c >= 0x400 && c <= 0x40F) return c + 0x50;
  return c;
}

/// One letter and its accents: the two levels of comparison.
struct Letter {
  char32_t letter = 0;
  char32_t accents = 0;
};

/// Reads the letters of a text one by one, so that a comparison allocates no memory.
class Letters {
 public:
  /// Starts at byte `at`, which must be the first of a letter.
  Letters(std::string_view text, std::size_t at) : text_(text), at_(at) {}

  bool atEnd() const { return at_ == text_.size(); }

  Letter next() {
    constexpr char32_t kTilde = 0x303 - 0x2FF;
    char32_t accent = 0;
    Letter read = bare(nextCharacter(text_, at_), accent);
    for (;;) {
      if (accent == kTilde && read.letter == U'n' * 2) {
        ++read.letter;
      } else if (accent != 0) {
        read.accents = read.accents * 0x80 + accent;
      }
      if (atEnd() || static_cast<unsigned char>(text_[at_]) < 0x80) return read;
      std::size_t behind = at_;
      const char32_t mark = nextCharacter(text_, behind);
      if (!isMark(mark)) return read;
      accent = mark - 0x2FF;
      at_ = behind;
    }
  }

 private:
  /// Letters are two apart, so that ñ fits after n.
  static Letter bare(char32_t c, char32_t& accent) {
    if (c < 0x80) return {foldedAscii(c).letter * U'\2', 0};
    if (c >= kFirstFoldedLetter && c - kFirstFoldedLetter < kFoldedLetters.size()) {
      const FoldedLetter& folded = kFoldedLetters[c - kFirstFoldedLetter];
      accent = folded.accent;
      return {folded.letter * U'\2', 0};
    }
    return {loweredBeyondLatin(c) * 2, 0};
  }

  std::string_view text_;
  std::size_t at_;
};

/// Compares what follows byte `from`; what precedes it is equal in both texts.
int compareFolded(std::string_view a, std::string_view b, std::size_t from) {
  // Accents belong to the letter before them.
  while (from > 0 && static_cast<unsigned char>(a[--from]) >= 0x80) {
  }
  Letters left(a, from);
  Letters right(b, from);
  int accents = 0;
  while (!left.atEnd() && !right.atEnd()) {
    const Letter one = left.next();
    const Letter other = right.next();
    if (one.letter != other.letter) return one.letter < other.letter ? -1 : 1;
    if (accents == 0 && one.accents != other.accents) {
      accents = one.accents < other.accents ? -1 : 1;
    }
  }
  if (left.atEnd() != right.atEnd()) return left.atEnd() ? -1 : 1;
  return accents;
}

}  // namespace

int compareTexts(std::string_view a, std::string_view b) {
  a = withoutTrailingBlanks(a);
  b = withoutTrailingBlanks(b);
  const std::size_t common = a.size() < b.size() ? a.size() : b.size();
  for (std::size_t i = 0; i < common; ++i) {
    if (a[i] == b[i]) continue;
    const auto left = static_cast<unsigned char>(a[i]);
    const auto right = static_cast<unsigned char>(b[i]);
    if (left >= 0x80 || right >= 0x80) return compareFolded(a, b, i);
    // Different letters decide, regardless of accents.
    const int difference = lowered(a[i]) - lowered(b[i]);
    if (difference != 0) return difference;
  }
  if (a.size() == b.size()) return 0;
  // What is left over may be accents of the letter before, so it counts only when it is ASCII.
  const std::string_view longer = a.size() > b.size() ? a : b;
  if (static_cast<unsigned char>(longer[common]) >= 0x80) return compareFolded(a, b, common);
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
