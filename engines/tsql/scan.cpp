#include "engines/tsql/scan.h"

#include <algorithm>
#include <array>

namespace korvantes::tsql {

namespace {

enum class Class : std::uint8_t { Other, Blank, Letter, Digit, Symbol };

constexpr std::array<Class, 256> makeClasses() {
  std::array<Class, 256> classes{};
  for (const char c : std::string_view(" \t\r\n\f\v")) {
    classes[static_cast<unsigned char>(c)] = Class::Blank;
  }
  for (std::size_t c = 'a'; c <= 'z'; ++c) classes[c] = classes[c - 32] = Class::Letter;
  // Letters beyond ASCII: every byte of their UTF-8 form.
  for (std::size_t c = 0x80; c <= 0xFF; ++c) classes[c] = Class::Letter;
  classes['_'] = Class::Letter;
  for (std::size_t c = '0'; c <= '9'; ++c) classes[c] = Class::Digit;
  for (const char c : std::string_view("(),.;+-*/%=<>!")) {
    classes[static_cast<unsigned char>(c)] = Class::Symbol;
  }
  return classes;
}

constexpr auto kClasses = makeClasses();

/// A text that can be read at any position; past its end it yields NUL.
struct Reader {
  std::string_view text;

  char at(std::size_t i) const { return i < text.size() ? text[i] : '\0'; }
  Class classAt(std::size_t i) const { return kClasses[static_cast<unsigned char>(at(i))]; }
  bool isDigit(std::size_t i) const { return classAt(i) == Class::Digit; }
};

/// Position after blanks and comments; text.size() + 1 if a comment is never closed, with its
/// beginning in `comment`.
std::size_t skipBlanks(const Reader& in, std::size_t i, std::size_t& comment) {
  while (true) {
    while (in.classAt(i) == Class::Blank) ++i;
    if (in.at(i) == '-' && in.at(i + 1) == '-') {
      i = std::min(in.text.find('\n', i), in.text.size());
    } else if (in.at(i) == '/' && in.at(i + 1) == '*') {
      const auto end = in.text.find("*/", i + 2);
      if (end == std::string_view::npos) {
        comment = i;
        return in.text.size() + 1;
      }
      i = end + 2;
    } else {
      return i;
    }
  }
}

/// A text or a bracketed name, whose closing character may occur doubled inside.
Piece enclosed(const Reader& in, PieceKind kind, std::size_t begin, std::size_t inside,
               char closing) {
  for (std::size_t i = inside;; i += 2) {
    i = in.text.find(closing, i);
    if (i == std::string_view::npos) return {PieceKind::Unclosed, begin, in.text.size()};
    if (in.at(i + 1) != closing) return {kind, begin, i + 1};
  }
}

bool isHexDigit(char c) {
  return (c >= '0' && c <= '9') || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

/// A number ends where its digits end: "7ORDER" is a number and a word.
Piece number(const Reader& in, std::size_t begin) {
  std::size_t i = begin;
  if (in.at(i) == '0' && (in.at(i + 1) == 'x' || in.at(i + 1) == 'X')) {
    i += 2;
    while (isHexDigit(in.at(i))) ++i;
    return {PieceKind::Binary, begin, i};
  }
  while (in.isDigit(i)) ++i;
  PieceKind kind = PieceKind::Whole;
  if (in.at(i) == '.') {
    kind = PieceKind::Decimal;
    ++i;
    while (in.isDigit(i)) ++i;
  }
  if (in.at(i) == 'e' || in.at(i) == 'E') {
    std::size_t exponent = i + 1;
    if (in.at(exponent) == '+' || in.at(exponent) == '-') ++exponent;
    if (in.isDigit(exponent)) {
      while (in.isDigit(exponent)) ++exponent;
      return {PieceKind::Float, begin, exponent};
    }
  }
  return {kind, begin, i};
}

Piece symbol(const Reader& in, std::size_t begin) {
  const char first = in.at(begin);
  const char second = in.at(begin + 1);
  const bool two = (first == '<' && (second == '=' || second == '>')) ||
                   (first == '>' && second == '=') ||
                   (first == '!' && (second == '=' || second == '<' || second == '>'));
  if (first == '!' && !two) return {PieceKind::BadCharacter, begin, begin + 1};
  return {PieceKind::Symbol, begin, begin + (two ? 2U : 1U)};
}

}  // namespace

Piece nextPiece(std::string_view text, std::size_t from) {
  const Reader in{text};
  std::size_t comment = 0;
  const std::size_t begin = skipBlanks(in, from, comment);
  if (begin > text.size()) return {PieceKind::Unclosed, comment, text.size()};
  if (begin == text.size()) return {PieceKind::End, begin, begin};
  switch (in.classAt(begin)) {
    case Class::Letter: {
      std::size_t end = begin + 1;
      if (in.at(end) == '\'' && (in.at(begin) == 'N' || in.at(begin) == 'n')) {
        return enclosed(in, PieceKind::Text, begin, end + 1, '\'');
      }
      while (in.classAt(end) == Class::Letter || in.isDigit(end)) ++end;
      return {PieceKind::Word, begin, end};
    }
    case Class::Digit:
      return number(in, begin);
    case Class::Symbol:
      if (in.at(begin) == '.' && in.isDigit(begin + 1)) return number(in, begin);
      return symbol(in, begin);
    default:
      break;
  }
  if (in.at(begin) == '\'') return enclosed(in, PieceKind::Text, begin, begin + 1, '\'');
  if (in.at(begin) == '[') return enclosed(in, PieceKind::Bracketed, begin, begin + 1, ']');
  return {PieceKind::BadCharacter, begin, begin + 1};
}

}  // namespace korvantes::tsql
