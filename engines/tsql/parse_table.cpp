#include "engines/tsql/parser.h"

namespace korvantes::tsql {

namespace {

using namespace syntax;

std::vector<Name> parseNames(TokenStream& in) {
  std::vector<Name> names;
  in.expectSymbol("(");
  do {
    names.push_back(in.name("un nombre de columna"));
    in.accept("ASC");
  } while (in.acceptSymbol(","));
  in.expectSymbol(")");
  return names;
}

void skipClustering(TokenStream& in) {
  if (!in.accept("CLUSTERED")) in.accept("NONCLUSTERED");
}

/// PRIMARY KEY or UNIQUE, optionally after a constraint name, which is ignored.
std::optional<KeyDeclaration> parseKey(TokenStream& in) {
  if (in.accept("CONSTRAINT")) in.name("el nombre de la restricción");
  KeyDeclaration key;
  key.where = in.peek().where;
  if (in.accept("PRIMARY")) {
    in.expect("KEY");
    key.primary = true;
  } else if (!in.accept("UNIQUE")) {
    return std::nullopt;
  }
  skipClustering(in);
  return key;
}

void parseIdentity(TokenStream& in, ColumnDeclaration& column) {
  column.identity = true;
  if (!in.acceptSymbol("(")) return;
  for (int i = 0; i < 2; ++i) {
    if (i == 1) in.expectSymbol(",");
    const auto where = in.peek().where;
    const auto value = in.literal(PieceKind::Whole, "un número");
    if (value.literal.raw != "1") refuse(Problem::NotSupported, where, value.literal.raw);
  }
  in.expectSymbol(")");
}

void parseColumn(TokenStream& in, CreateTable& table) {
  ColumnDeclaration column;
  column.name = in.name("un nombre de columna");
  column.type = parseTypeName(in);
  while (!in.peek().isSymbol(",") && !in.peek().isSymbol(")")) {
    if (in.accept("NOT")) {
      in.expect("NULL");
      column.nullable = false;
    } else if (in.accept("NULL")) {
      column.nullable = true;
    } else if (in.accept("IDENTITY")) {
      parseIdentity(in, column);
    } else if (auto key = parseKey(in)) {
      key->columns.push_back(column.name);
      table.keys.push_back(std::move(*key));
    } else {
      in.refuseHere("NULL, NOT NULL, IDENTITY, PRIMARY KEY, UNIQUE, «,» o «)»");
    }
  }
  table.columns.push_back(std::move(column));
}

Statement parseCreateTable(TokenStream& in) {
  CreateTable table;
  table.table = parseTableName(in);
  in.expectSymbol("(");
  do {
    if (auto key = parseKey(in)) {
      key->columns = parseNames(in);
      table.keys.push_back(std::move(*key));
    } else {
      parseColumn(in, table);
    }
  } while (in.acceptSymbol(","));
  in.expectSymbol(")");
  return table;
}

Statement parseCreateIndex(TokenStream& in, bool unique) {
  CreateIndex index;
  index.unique = unique;
  index.name = in.name("el nombre del índice");
  in.expect("ON");
  index.table = parseTableName(in);
  in.expectSymbol("(");
  do {
    auto column = in.name("un nombre de columna");
    const bool descending = in.accept("DESC");
    if (!descending) in.accept("ASC");
    index.columns.emplace_back(std::move(column), descending);
  } while (in.acceptSymbol(","));
  in.expectSymbol(")");
  return index;
}

}  // namespace

TypeName parseTypeName(TokenStream& in) {
  TypeName type;
  type.name = in.name("un tipo");
  if (!in.acceptSymbol("(")) return type;
  if (in.accept("MAX")) {
    type.max = true;
  } else {
    do {
      type.sizes.push_back(in.literal(PieceKind::Whole, "un tamaño"));
    } while (in.acceptSymbol(","));
  }
  in.expectSymbol(")");
  return type;
}

Statement parseCreate(TokenStream& in) {
  if (in.accept("TABLE")) return parseCreateTable(in);
  const bool unique = in.accept("UNIQUE");
  skipClustering(in);
  if (in.accept("INDEX")) return parseCreateIndex(in, unique);
  in.refuseHere("TABLE o INDEX");
}

Statement parseDrop(TokenStream& in) {
  in.expect("TABLE");
  return DropTable{parseTableName(in)};
}

}  // namespace korvantes::tsql
