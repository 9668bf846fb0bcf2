#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/literal.h"
#include "engines/tsql/problem.h"

namespace korvantes::tsql {

struct Token {
  PieceKind kind = PieceKind::End;
  Location where;
  std::string_view raw;  ///< as the text has it
  std::size_t offset = 0;
  std::size_t literal = 0;  ///< for a literal: which one of the text, from 0

  /// The name that a word or a bracketed name denotes.
  std::string name() const;
  bool isName() const { return kind == PieceKind::Word || kind == PieceKind::Bracketed; }
  /// Whether it is this word of the language, case-insensitive.
  bool is(std::string_view keyword) const;
  bool isSymbol(std::string_view symbol) const {
    return kind == PieceKind::Symbol && raw == symbol;
  }
  /// For messages: the raw text, cut short; "fin de la sentencia" at the end.
  std::string word() const;
};

/// All tokens of a text, the last one of kind End. Throws Refusal.
std::vector<Token> tokensOf(std::string_view text);

}  // namespace korvantes::tsql
