#include "engines/tsql/token_stream.h"

#include <algorithm>
#include <array>

namespace korvantes::tsql {

namespace {

constexpr int kDeepestNesting = 150;

/// Words that cannot be a name without brackets.
constexpr std::array kReserved = std::to_array<std::string_view>(
    {"ADD",   "ALL",      "ALTER",   "AND",      "AS",       "ASC",        "BEGIN",   "BETWEEN",
     "BY",    "CASE",     "CHECK",   "COALESCE", "COMMIT",   "CONSTRAINT", "CONVERT", "CREATE",
     "CROSS", "DECLARE",  "DEFAULT", "DELETE",   "DESC",     "DISTINCT",   "DROP",    "ELSE",
     "END",   "EXCEPT",   "EXEC",    "EXECUTE",  "EXISTS",   "FOR",        "FOREIGN", "FROM",
     "FULL",  "GRANT",    "GROUP",   "HAVING",   "IDENTITY", "IF",         "IN",      "INDEX",
     "INNER", "INSERT",   "INTO",    "IS",       "JOIN",     "KEY",        "LEFT",    "LIKE",
     "MERGE", "NOT",      "NULL",    "ON",       "OR",       "ORDER",      "OUTER",   "PRIMARY",
     "RIGHT", "ROLLBACK", "SELECT",  "SET",      "TABLE",    "THEN",       "TOP",     "TRUNCATE",
     "UNION", "UNIQUE",   "UPDATE",  "VALUES",   "WHEN",     "WHERE",      "WHILE",   "WITH"});

bool isReserved(const Token& token) {
  const auto same = [&](std::string_view word) { return token.is(word); };
  return std::any_of(kReserved.begin(), kReserved.end(), same);
}

}  // namespace

const Token& TokenStream::take() {
  const Token& token = peek();
  if (position_ < tokens_.size()) ++position_;
  return token;
}

bool TokenStream::accept(std::string_view keyword) {
  if (!peek().is(keyword)) return false;
  take();
  return true;
}

bool TokenStream::acceptSymbol(std::string_view symbol) {
  if (!peek().isSymbol(symbol)) return false;
  take();
  return true;
}

void TokenStream::expect(std::string_view keyword) {
  if (!accept(keyword)) refuseHere(keyword);
}

void TokenStream::expectSymbol(std::string_view symbol) {
  if (!acceptSymbol(symbol)) refuseHere("«" + std::string(symbol) + "»");
}

bool TokenStream::atName() const {
  return peek().isName() && !isReserved(peek());
}

syntax::Name TokenStream::name(std::string_view what) {
  if (!atName()) refuseHere(what);
  const Token& token = take();
  return {token.name(), token.where};
}

syntax::LiteralValue TokenStream::literal() {
  const Token& token = take();
  return {{token.kind, token.raw, token.offset}, token.literal};
}

syntax::LiteralValue TokenStream::literal(PieceKind kind, std::string_view what) {
  if (peek().kind != kind) refuseHere(what);
  return literal();
}

void TokenStream::refuseHere(std::string_view expected) const {
  if (peek().kind == PieceKind::End) refuse(Problem::Missing, peek().where, {}, expected);
  refuse(Problem::Expected, peek().where, peek().word(), expected);
}

TokenStream::Nesting::Nesting(TokenStream& stream) : stream_(stream) {
  if (++stream_.depth_ > kDeepestNesting) {
    --stream_.depth_;
    refuse(Problem::TooDeep, stream_.peek().where, stream_.peek().word());
  }
}

}  // namespace korvantes::tsql
