#pragma once

#include <string_view>
#include <vector>

#include "engines/tsql/lexer.h"
#include "engines/tsql/syntax.h"

namespace korvantes::tsql {

/// The tokens as the parser consumes them. If an expected token is missing, a Refusal names the one
/// found in its place.
class TokenStream {
 public:
  explicit TokenStream(std::vector<Token> tokens) : tokens_(std::move(tokens)) {}

  const Token& peek(std::size_t ahead = 0) const {
    return tokens_[std::min(position_ + ahead, tokens_.size() - 1)];
  }
  const Token& take();

  bool accept(std::string_view keyword);
  bool acceptSymbol(std::string_view symbol);
  void expect(std::string_view keyword);
  void expectSymbol(std::string_view symbol);

  /// Whether the next token is a name: a bracketed one, or a word that is not a keyword.
  bool atName() const;
  syntax::Name name(std::string_view what);
  syntax::LiteralValue literal(PieceKind kind, std::string_view what);
  syntax::LiteralValue literal();

  [[noreturn]] void refuseHere(std::string_view expected) const;

  /// Guards against texts nested so deeply that reading them would exhaust the stack.
  class Nesting {
   public:
    explicit Nesting(TokenStream& stream);
    ~Nesting() { --stream_.depth_; }
    Nesting(const Nesting&) = delete;
    Nesting& operator=(const Nesting&) = delete;

   private:
    TokenStream& stream_;
  };

 private:
  std::vector<Token> tokens_;
  std::size_t position_ = 0;
  int depth_ = 0;
};

}  // namespace korvantes::tsql
