#include "engines/tsql/parser.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

namespace {

using namespace syntax;

Source parseSource(TokenStream& in, Join join) {
  Source source;
  source.join = join;
  source.table = parseTableName(in);
  if (in.accept("AS")) {
    source.alias = in.name("un alias");
  } else if (in.atName()) {
    source.alias = in.name("un alias");
  }
  if (join != Join::Comma) {
    in.expect("ON");
    source.on = parseExpression(in);
  }
  return source;
}

std::vector<Source> parseSources(TokenStream& in) {
  std::vector<Source> sources;
  sources.push_back(parseSource(in, Join::Comma));
  while (true) {
    if (in.acceptSymbol(",")) {
      sources.push_back(parseSource(in, Join::Comma));
    } else if (in.accept("INNER")) {
      in.expect("JOIN");
      sources.push_back(parseSource(in, Join::Inner));
    } else if (in.accept("JOIN")) {
      sources.push_back(parseSource(in, Join::Inner));
    } else if (in.accept("LEFT")) {
      in.accept("OUTER");
      in.expect("JOIN");
      sources.push_back(parseSource(in, Join::Left));
    } else {
      return sources;
    }
  }
}

SelectItem parseItem(TokenStream& in) {
  SelectItem item;
  item.where = in.peek().where;
  if (in.acceptSymbol("*")) return item;
  if (in.atName() && in.peek(1).isSymbol(".") && in.peek(2).isSymbol("*")) {
    item.starOf = in.name("una tabla");
    in.take();
    in.take();
    return item;
  }
  item.expression = parseExpression(in);
  if (in.accept("AS")) {
    item.alias = in.name("un alias");
  } else if (in.atName()) {
    item.alias = in.name("un alias");
  }
  return item;
}

std::optional<LiteralValue> parseTop(TokenStream& in) {
  if (!in.accept("TOP")) return std::nullopt;
  const bool open = in.acceptSymbol("(");
  const auto count = in.literal(PieceKind::Whole, "un número de filas");
  if (open) in.expectSymbol(")");
  if (in.peek().is("PERCENT") || in.peek().is("WITH")) {
    refuse(Problem::NotSupported, in.peek().where, in.peek().word());
  }
  return count;
}

Core parseCore(TokenStream& in) {
  Core core;
  core.where = in.peek().where;
  in.expect("SELECT");
  if (in.accept("DISTINCT")) {
    core.distinct = true;
  } else {
    in.accept("ALL");
  }
  core.top = parseTop(in);
  do {
    core.items.push_back(parseItem(in));
  } while (in.acceptSymbol(","));
  if (in.accept("FROM")) core.sources = parseSources(in);
  if (in.accept("WHERE")) core.filter = parseExpression(in);
  if (in.accept("GROUP")) {
    in.expect("BY");
    do {
      core.groupBy.push_back(parseExpression(in));
    } while (in.acceptSymbol(","));
  }
  if (in.accept("HAVING")) core.having = parseExpression(in);
  return core;
}

std::vector<ExpressionPtr> parseRow(TokenStream& in) {
  std::vector<ExpressionPtr> row;
  in.expectSymbol("(");
  do {
    row.push_back(parseExpression(in));
  } while (in.acceptSymbol(","));
  in.expectSymbol(")");
  return row;
}

Statement parseInsert(TokenStream& in) {
  Insert insert;
  in.accept("INTO");
  insert.table = parseTableName(in);
  if (in.acceptSymbol("(")) {
    do {
      insert.columns.push_back(in.name("un nombre de columna"));
    } while (in.acceptSymbol(","));
    in.expectSymbol(")");
  }
  if (in.peek().is("SELECT")) {
    insert.select = std::make_unique<Select>(parseSelect(in));
    return insert;
  }
  in.expect("VALUES");
  do {
    insert.rowPlaces.push_back(in.peek().where);
    insert.rows.push_back(parseRow(in));
  } while (in.acceptSymbol(","));
  return insert;
}

Statement parseUpdate(TokenStream& in) {
  Update update;
  update.table = parseTableName(in);
  in.expect("SET");
  do {
    auto column = in.name("un nombre de columna");
    in.expectSymbol("=");
    update.changes.emplace_back(std::move(column), parseExpression(in));
  } while (in.acceptSymbol(","));
  if (in.accept("WHERE")) update.filter = parseExpression(in);
  return update;
}

Statement parseDelete(TokenStream& in) {
  Delete statement;
  in.accept("FROM");
  statement.table = parseTableName(in);
  if (in.accept("WHERE")) statement.filter = parseExpression(in);
  return statement;
}

Statement parseAny(TokenStream& in) {
  if (in.peek().is("SELECT")) return parseSelect(in);
  if (in.accept("INSERT")) return parseInsert(in);
  if (in.accept("UPDATE")) return parseUpdate(in);
  if (in.accept("DELETE")) return parseDelete(in);
  if (in.accept("CREATE")) return parseCreate(in);
  if (in.accept("DROP")) return parseDrop(in);
  in.refuseHere("SELECT, INSERT, UPDATE, DELETE, CREATE o DROP");
}

/// Words that begin a statement: after a complete one they are a second statement.
bool beginsStatement(const Token& token) {
  for (const std::string_view word : {"SELECT", "INSERT", "UPDATE", "DELETE", "CREATE", "DROP",
                                      "ALTER", "EXEC", "EXECUTE", "TRUNCATE", "DECLARE", "BEGIN"}) {
    if (token.is(word)) return true;
  }
  return false;
}

}  // namespace

Select parseSelect(TokenStream& in) {
  const TokenStream::Nesting nesting(in);
  Select select;
  select.cores.push_back(parseCore(in));
  while (in.accept("UNION")) {
    select.unionAll.push_back(in.accept("ALL"));
    select.cores.push_back(parseCore(in));
  }
  if (in.accept("ORDER")) {
    in.expect("BY");
    do {
      OrderItem item;
      item.expression = parseExpression(in);
      if (in.accept("DESC")) {
        item.descending = true;
      } else {
        in.accept("ASC");
      }
      select.order.push_back(std::move(item));
    } while (in.acceptSymbol(","));
  }
  return select;
}

TableName parseTableName(TokenStream& in) {
  TableName name;
  name.table = in.name("el nombre de una tabla");
  if (!in.acceptSymbol(".")) return name;
  Name schema = std::move(name.table);
  if (in.acceptSymbol(".")) {  // Vespara..PAIS
    name.database = std::move(schema);
    name.table = in.name("el nombre de una tabla");
    return name;
  }
  name.table = in.name("el nombre de una tabla");
  if (in.acceptSymbol(".")) {
    name.database = std::move(schema);
    schema = std::move(name.table);
    name.table = in.name("el nombre de una tabla");
  }
  if (!ado::sameName(schema.text, "dbo")) {
    refuse(Problem::Expected, schema.where, schema.text, "el esquema dbo");
  }
  return name;
}

Statement parse(std::string_view text) {
  TokenStream in(tokensOf(text));
  if (in.peek().kind == PieceKind::End) refuse(Problem::Empty, in.peek().where);
  auto statement = parseAny(in);
  const bool ended = in.acceptSymbol(";");
  const Token& rest = in.peek();
  if (rest.kind == PieceKind::End) return statement;
  refuse(ended || beginsStatement(rest) ? Problem::SecondStatement : Problem::Unexpected,
         rest.where, rest.word());
}

}  // namespace korvantes::tsql
