#include "runtime/ado/utf8.h"

namespace korvantes::ado {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

struct Decoded {
  char32_t character;
  std::size_t length;
};

/// Reads the character at `at`; an invalid byte is one character of its own.
Decoded decode(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) {
    return static_cast<char32_t>(static_cast<unsigned char>(text[i]));
  };
  const char32_t lead = byte(at);
  if (lead < 0x80) return {lead, 1};
  std::size_t length = 0;
  char32_t character = 0;
  char32_t smallest = 0;
  if (lead >= 0xC2 && lead < 0xE0) {
    length = 2, character = lead & 0x1FU, smallest = 0x80;
  } else if (lead >= 0xE0 && lead < 0xF0) {
    length = 3, character = lead & 0x0FU, smallest = 0x800;
  } else if (lead >= 0xF0 && lead < 0xF5) {
    length = 4, character = lead & 0x07U, smallest = 0x10000;
  } else {
    return {kReplacement, 1};
  }
  if (text.size() - at < length) return {kReplacement, 1};
  for (std::size_t i = 1; i < length; ++i) {
    const char32_t next = byte(at + i);
    if ((next & 0xC0U) != 0x80) return {kReplacement, 1};
    character = (character << 6U) | (next & 0x3FU);
  }
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  if (character < smallest || character > 0x10FFFF || surrogate) return {kReplacement, 1};
  return {character, length};
}

}  // namespace

std::size_t characterCount(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); at += decode(text, at).length) ++count;
  return count;
}

std::string_view firstCharacters(std::string_view text, std::size_t count) {
  return text.substr(0, byteOffset(text, count));
}

std::size_t byteOffset(std::string_view text, std::size_t index) {
  // A text with no more bytes than that has no such character.
  if (text.size() <= index) return text.size();
  std::size_t at = 0;
  for (; at < text.size() && index > 0; --index) at += decode(text, at).length;
  return at;
}

char32_t nextCharacter(std::string_view text, std::size_t& at) {
  const Decoded next = decode(text, at);
  at += next.length;
  return next.character;
}

std::u32string toCodePoints(std::string_view text) {
  std::u32string characters;
  characters.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) characters += nextCharacter(text, at);
  return characters;
}

std::string toUtf8(char32_t character) {
  const auto tail = [&](unsigned shift) {
    return static_cast<char>(0x80U | ((character >> shift) & 0x3FU));
  };
  if (character > 0x10FFFF || (character >= 0xD800 && character < 0xE000)) {
    character = kReplacement;
  }
  if (character < 0x80) return {static_cast<char>(character)};
  if (character < 0x800) return {static_cast<char>(0xC0U | (character >> 6U)), tail(0)};
  if (character < 0x10000) {
    return {static_cast<char>(0xE0U | (character >> 12U)), tail(6), tail(0)};
  }
  return {static_cast<char>(0xF0U | (character >> 18U)), tail(12), tail(6), tail(0)};
}

std::string toUtf8(std::u32string_view characters) {
  std::string text;
  text.reserve(characters.size());
  for (const char32_t character : characters) text += toUtf8(character);
  return text;
}

}  // namespace korvantes::ado
