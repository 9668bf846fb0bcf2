#include <algorithm>
#include <array>
#include <optional>

#include "engines/tsql/parser.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

namespace {

using namespace syntax;

/// Chains of operators make deep trees; the engines have their own limits, above this one.
constexpr int kDeepestExpression = 400;

ExpressionPtr make(const Token& token, ExpressionNode node,
                   std::initializer_list<int> depths = {}) {
  const int below = depths.size() == 0 ? 0 : std::max(depths);
  if (below >= kDeepestExpression) refuse(Problem::TooDeep, token.where, token.word());
  return std::make_unique<Expression>(
      Expression{token.where, token.word(), below + 1, std::move(node)});
}

ExpressionPtr parseBinary(const Token& op, BinaryOperator kind, ExpressionPtr left,
                          ExpressionPtr right) {
  const int leftDepth = left->depth;
  const int rightDepth = right->depth;
  return make(op, Binary{kind, std::move(left), std::move(right)}, {leftDepth, rightDepth});
}

ExpressionPtr parseValue(TokenStream& in);

ExpressionPtr parseCast(TokenStream& in, const Token& word) {
  in.expectSymbol("(");
  Cast cast;
  cast.operand = parseExpression(in);
  in.expect("AS");
  cast.type = parseTypeName(in);
  in.expectSymbol(")");
  const int depth = cast.operand->depth;
  return make(word, std::move(cast), {depth});
}

ExpressionPtr parseConvert(TokenStream& in, const Token& word) {
  in.expectSymbol("(");
  Cast cast;
  cast.type = parseTypeName(in);
  in.expectSymbol(",");
  cast.operand = parseExpression(in);
  if (in.acceptSymbol(",")) cast.style = in.literal(PieceKind::Whole, "un estilo");
  in.expectSymbol(")");
  const int depth = cast.operand->depth;
  return make(word, std::move(cast), {depth});
}

ExpressionPtr parseCase(TokenStream& in, const Token& word) {
  Case node;
  if (!in.peek().is("WHEN")) node.subject = parseExpression(in);
  int depth = node.subject ? node.subject->depth : 0;
  do {
    in.expect("WHEN");
    auto condition = parseExpression(in);
    in.expect("THEN");
    auto result = parseExpression(in);
    depth = std::max({depth, condition->depth, result->depth});
    node.branches.emplace_back(std::move(condition), std::move(result));
  } while (in.peek().is("WHEN"));
  if (in.accept("ELSE")) {
    node.otherwise = parseExpression(in);
    depth = std::max(depth, node.otherwise->depth);
  }
  in.expect("END");
  return make(word, std::move(node), {depth});
}

ExpressionPtr parseCall(TokenStream& in, const Token& word) {
  Call call;
  call.function = word.name();
  in.expectSymbol("(");
  if (in.acceptSymbol(")")) return make(word, std::move(call));
  int depth = 0;
  if (in.peek().isSymbol("*")) {
    call.arguments.push_back(make(in.take(), Star{}));
  } else {
    if (in.accept("DISTINCT")) {
      call.distinct = true;
    } else {
      in.accept("ALL");
    }
    do {
      call.arguments.push_back(parseExpression(in));
      depth = std::max(depth, call.arguments.back()->depth);
    } while (in.acceptSymbol(","));
  }
  in.expectSymbol(")");
  return make(word, std::move(call), {depth});
}

ExpressionPtr parseColumn(TokenStream& in) {
  const Token token = in.peek();
  ColumnName name;
  name.column = in.name("una expresión");
  if (in.acceptSymbol(".")) {
    name.qualifier = std::move(name.column);
    // dbo.Cav.Cav_Id: the schema says nothing.
    name.column = in.name("un nombre de columna");
    if (in.acceptSymbol(".")) {
      if (!ado::sameName(name.qualifier.text, "dbo")) {
        refuse(Problem::NoSource, name.qualifier.where, name.qualifier.text);
      }
      name.qualifier = std::move(name.column);
      name.column = in.name("un nombre de columna");
    }
  }
  auto column = make(token, std::move(name));
  column->word = std::get<ColumnName>(column->node).column.text;
  return column;
}

ExpressionPtr parseParenthesised(TokenStream& in, const Token& open) {
  if (in.peek().is("SELECT")) {
    auto select = std::make_unique<Select>(parseSelect(in));
    in.expectSymbol(")");
    return make(open, Subquery{std::move(select)});
  }
  auto inside = parseExpression(in);
  in.expectSymbol(")");
  return inside;
}

ExpressionPtr parseExists(TokenStream& in, const Token& word) {
  in.expectSymbol("(");
  auto select = std::make_unique<Select>(parseSelect(in));
  in.expectSymbol(")");
  return make(word, Exists{std::move(select)});
}

ExpressionPtr parsePrimary(TokenStream& in) {
  const Token token = in.peek();
  if (isLiteral(token.kind)) return make(token, in.literal());
  if (in.acceptSymbol("(")) return parseParenthesised(in, token);
  if (in.accept("NULL")) return make(token, NullValue{});
  if (in.accept("CASE")) return parseCase(in, token);
  if (in.accept("CAST")) return parseCast(in, token);
  if (in.accept("CONVERT")) return parseConvert(in, token);
  if (in.accept("EXISTS")) return parseExists(in, token);
  if ((in.atName() || token.is("COALESCE")) && in.peek(1).isSymbol("(")) {
    in.take();
    return parseCall(in, token);
  }
  return parseColumn(in);
}

ExpressionPtr parseSigned(TokenStream& in) {
  const TokenStream::Nesting nesting(in);
  const Token token = in.peek();
  if (in.acceptSymbol("+")) return parseSigned(in);
  if (!in.acceptSymbol("-")) return parsePrimary(in);
  auto operand = parseSigned(in);
  const int depth = operand->depth;
  return make(token, Unary{UnaryOperator::Minus, std::move(operand)}, {depth});
}

struct OperatorOf {
  std::string_view symbol;
  BinaryOperator op;
};

constexpr std::array kFactors{OperatorOf{"*", BinaryOperator::Multiply},
                              OperatorOf{"/", BinaryOperator::Divide},
                              OperatorOf{"%", BinaryOperator::Modulo}};
constexpr std::array kTerms{OperatorOf{"+", BinaryOperator::Add},
                            OperatorOf{"-", BinaryOperator::Subtract}};
constexpr std::array kComparisons{
    OperatorOf{"=", BinaryOperator::Equal},        OperatorOf{"<>", BinaryOperator::NotEqual},
    OperatorOf{"!=", BinaryOperator::NotEqual},    OperatorOf{"<", BinaryOperator::Less},
    OperatorOf{"<=", BinaryOperator::LessEqual},   OperatorOf{"!>", BinaryOperator::LessEqual},
    OperatorOf{">", BinaryOperator::Greater},      OperatorOf{">=", BinaryOperator::GreaterEqual},
    OperatorOf{"!<", BinaryOperator::GreaterEqual}};

template <typename Table>
std::optional<BinaryOperator> operatorAt(const TokenStream& in, const Table& table) {
  for (const auto& entry : table) {
    if (in.peek().isSymbol(entry.symbol)) return entry.op;
  }
  return std::nullopt;
}

template <typename Table, typename Operand>
ExpressionPtr parseChain(TokenStream& in, const Table& table, Operand operand) {
  auto left = operand(in);
  while (const auto op = operatorAt(in, table)) {
    const Token token = in.take();
    left = parseBinary(token, *op, std::move(left), operand(in));
  }
  return left;
}

ExpressionPtr parseProduct(TokenStream& in) {
  return parseChain(in, kFactors, parseSigned);
}
ExpressionPtr parseValue(TokenStream& in) {
  return parseChain(in, kTerms, parseProduct);
}

ExpressionPtr parseIn(TokenStream& in, const Token& word, ExpressionPtr subject, bool negated) {
  in.expectSymbol("(");
  int depth = subject->depth;
  if (in.peek().is("SELECT")) {
    auto select = std::make_unique<Select>(parseSelect(in));
    in.expectSymbol(")");
    return make(word, InSelect{std::move(subject), std::move(select), negated}, {depth});
  }
  InList list{std::move(subject), {}, negated};
  do {
    list.items.push_back(parseExpression(in));
    depth = std::max(depth, list.items.back()->depth);
  } while (in.acceptSymbol(","));
  in.expectSymbol(")");
  return make(word, std::move(list), {depth});
}

ExpressionPtr parseBetween(TokenStream& in, const Token& word, ExpressionPtr subject,
                           bool negated) {
  auto low = parseValue(in);
  in.expect("AND");
  auto high = parseValue(in);
  const auto depths = {subject->depth, low->depth, high->depth};
  const int depth = std::max(depths);
  return make(word, Between{std::move(subject), std::move(low), std::move(high), negated}, {depth});
}

ExpressionPtr parsePredicate(TokenStream& in) {
  auto left = parseValue(in);
  const int depth = left->depth;
  const Token token = in.peek();
  if (const auto op = operatorAt(in, kComparisons)) {
    in.take();
    return parseBinary(token, *op, std::move(left), parseValue(in));
  }
  if (in.accept("IS")) {
    const bool negated = in.accept("NOT");
    in.expect("NULL");
    return make(token, IsNull{std::move(left), negated}, {depth});
  }
  const bool negated =
      token.is("NOT") && (in.peek(1).is("IN") || in.peek(1).is("LIKE") || in.peek(1).is("BETWEEN"));
  if (negated) in.take();
  const Token word = in.peek();
  if (in.accept("IN")) return parseIn(in, word, std::move(left), negated);
  if (in.accept("BETWEEN")) return parseBetween(in, word, std::move(left), negated);
  if (in.accept("LIKE")) {
    auto pattern = parseValue(in);
    const int below = std::max(depth, pattern->depth);
    return make(word, Like{std::move(left), std::move(pattern), negated}, {below});
  }
  return left;
}

ExpressionPtr parseNot(TokenStream& in) {
  const Token token = in.peek();
  if (!in.accept("NOT")) return parsePredicate(in);
  const TokenStream::Nesting nesting(in);
  auto operand = parseNot(in);
  const int depth = operand->depth;
  return make(token, Unary{UnaryOperator::Not, std::move(operand)}, {depth});
}

ExpressionPtr parseAnd(TokenStream& in) {
  auto left = parseNot(in);
  while (in.peek().is("AND")) {
    const Token token = in.take();
    left = parseBinary(token, BinaryOperator::And, std::move(left), parseNot(in));
  }
  return left;
}

}  // namespace

ExpressionPtr parseExpression(TokenStream& in) {
  const TokenStream::Nesting nesting(in);
  auto left = parseAnd(in);
  while (in.peek().is("OR")) {
    const Token token = in.take();
    left = parseBinary(token, BinaryOperator::Or, std::move(left), parseAnd(in));
  }
  return left;
}

}  // namespace korvantes::tsql
