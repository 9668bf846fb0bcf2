#include "engines/tsql/lexer.h"

#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"

namespace korvantes::tsql {

namespace {

std::string shownCharacter(char c) {
  if (static_cast<unsigned char>(c) >= 0x20) return "«" + std::string(1, c) + "»";
  return "de código " + std::to_string(static_cast<int>(c));
}

void refuseUnreadable(const Token& token) {
  switch (token.kind) {
    case PieceKind::Float:
      refuse(Problem::FloatingPoint, token.where, token.raw);
    case PieceKind::BadCharacter:
      refuse(Problem::BadCharacter, token.where, shownCharacter(token.raw.front()));
    case PieceKind::Unclosed:
      refuse(Problem::Unclosed, token.where,
             token.raw.starts_with('[')    ? "el corchete «[»"
             : token.raw.starts_with("/*") ? "el comentario «/*»"
                                           : "la comilla «'»");
    case PieceKind::Text:
    case PieceKind::Bracketed:
      if (token.raw.find('\0') != std::string_view::npos) {
        refuse(Problem::BadCharacter, token.where, "de código 0");
      }
      return;
    default:
      return;
  }
}

}  // namespace

std::string Token::name() const {
  if (kind != PieceKind::Bracketed) return std::string(raw);
  std::string name;
  const auto inside = raw.substr(1, raw.size() - 2);
  for (std::size_t i = 0; i < inside.size(); ++i) {
    name += inside[i];
    if (inside[i] == ']') ++i;
  }
  return name;
}

bool Token::is(std::string_view keyword) const {
  return kind == PieceKind::Word && ado::sameName(raw, keyword);
}

std::string Token::word() const {
  constexpr std::size_t kShown = 40;
  if (kind == PieceKind::End) return "fin de la sentencia";
  const auto shown = ado::firstCharacters(raw, kShown);
  return std::string(shown) + (shown.size() < raw.size() ? "…" : "");
}

std::vector<Token> tokensOf(std::string_view text) {
  std::vector<Token> tokens;
  Location where;
  std::size_t located = 0;
  std::size_t literals = 0;
  for (std::size_t from = 0;; from = tokens.back().offset + tokens.back().raw.size()) {
    const Piece piece = nextPiece(text, from);
    const auto step = locate(text.substr(located), piece.begin - located);
    where = {where.line + step.line - 1,
             step.line == 1 ? where.column + step.column - 1 : step.column};
    located = piece.begin;
    tokens.push_back({piece.kind, where, text.substr(piece.begin, piece.end - piece.begin),
                      piece.begin, isLiteral(piece.kind) ? literals++ : 0});
    refuseUnreadable(tokens.back());
    if (piece.kind == PieceKind::End) return tokens;
  }
}

}  // namespace korvantes::tsql
