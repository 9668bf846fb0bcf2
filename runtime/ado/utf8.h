#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace korvantes::ado {

/// Texts are UTF-8; user-visible lengths (a field's maximum, a column's size) count code points. An
/// invalid byte counts as one character, so that no text is ever lost or rejected here.

/// Number of characters.
std::size_t characterCount(std::string_view text);

/// The first `count` characters, or the whole text if it has fewer.
std::string_view firstCharacters(std::string_view text, std::size_t count);

/// Byte position of character `index`; the text's size if there is no such character.
std::size_t byteOffset(std::string_view text, std::size_t index);

/// The code point at byte `at`, which moves past it; an invalid byte counts as U+FFFD.
char32_t nextCharacter(std::string_view text, std::size_t& at);

/// The code points of a text; an invalid byte counts as U+FFFD.
std::u32string toCodePoints(std::string_view text);

/// UTF-8 of one code point.
std::string toUtf8(char32_t character);
std::string toUtf8(std::u32string_view characters);

}  // namespace korvantes::ado
