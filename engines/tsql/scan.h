#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace korvantes::tsql {

/// What a statement's text consists of, blanks and comments aside. Lexer and cache share this scan,
/// so that they number literals alike.
enum class PieceKind : std::uint8_t {
  End,
  Word,
  Bracketed,     ///< [name]
  Whole,         ///< 12
  Decimal,       ///< 12.5
  Text,          ///< 'text' or N'text'
  Binary,        ///< 0x1F
  Symbol,        ///< ( ) , . ; + - * / % = < > <= >= <> != !< !>
  Float,         ///< 1e5: outside the subset
  Unclosed,      ///< a text, a bracket or a comment that is never closed
  BadCharacter,  ///< anything else
};

struct Piece {
  PieceKind kind;
  std::size_t begin;
  std::size_t end;
};

/// The next piece, at or after `from`.
Piece nextPiece(std::string_view text, std::size_t from);

constexpr bool isLiteral(PieceKind kind) {
  return kind >= PieceKind::Whole && kind <= PieceKind::Binary;
}

}  // namespace korvantes::tsql
