#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "engines/tsql/literal.h"
#include "engines/tsql/problem.h"
#include "engines/tsql/types.h"

/// The unbound tree: what a text says, before any name is looked up.
namespace korvantes::tsql::syntax {

struct Expression;
struct Select;
using ExpressionPtr = std::unique_ptr<Expression>;
using SelectPtr = std::unique_ptr<Select>;

struct Name {
  std::string text;
  Location where;

  bool empty() const { return text.empty(); }
};

struct ColumnName {
  Name qualifier;  ///< empty if the column has none
  Name column;
};

struct LiteralValue {
  Literal literal;
  std::size_t number = 0;  ///< which of the text's literals, from 0
};

struct NullValue {};
struct Star {};  ///< of COUNT(*)

enum class UnaryOperator { Minus, Not };
struct Unary {
  UnaryOperator op;
  ExpressionPtr operand;
};

enum class BinaryOperator {
  Add,
  Subtract,
  Multiply,
  Divide,
  Modulo,
  Equal,
  NotEqual,
  Less,
  LessEqual,
  Greater,
  GreaterEqual,
  And,
  Or
};
struct Binary {
  BinaryOperator op;
  ExpressionPtr left, right;
};

struct Call {
  std::string function;  ///< as written
  bool distinct = false;
  std::vector<ExpressionPtr> arguments;
};

/// A size in a type name: a literal of the text, or max.
struct TypeName {
  Name name;
  std::vector<LiteralValue> sizes;
  bool max = false;
};

struct Cast {
  ExpressionPtr operand;
  TypeName type;
  std::optional<LiteralValue> style;  ///< CONVERT's third argument
};

struct Case {
  ExpressionPtr subject;  ///< null for CASE WHEN
  std::vector<std::pair<ExpressionPtr, ExpressionPtr>> branches;
  ExpressionPtr otherwise;
};

struct Subquery {
  SelectPtr select;
};
struct InList {
  ExpressionPtr subject;
  std::vector<ExpressionPtr> items;
  bool negated = false;
};
struct InSelect {
  ExpressionPtr subject;
  SelectPtr select;
  bool negated = false;
};
struct Exists {
  SelectPtr select;
};
struct Between {
  ExpressionPtr subject, low, high;
  bool negated = false;
};
struct Like {
  ExpressionPtr subject, pattern;
  bool negated = false;
};
struct IsNull {
  ExpressionPtr subject;
  bool negated = false;
};

using ExpressionNode =
    std::variant<ColumnName, LiteralValue, NullValue, Star, Unary, Binary, Call, Cast, Case,
                 Subquery, InList, InSelect, Exists, Between, Like, IsNull>;

struct Expression {
  Location where;
  std::string word;  ///< for messages: the operator, the name, the literal
  int depth = 1;     ///< nodes on the longest way down
  ExpressionNode node;
};

struct TableName {
  Name database;  ///< empty for the company's own
  Name table;
};

enum class Join { Comma, Inner, Left };
struct Source {
  TableName table;
  Name alias;  ///< empty without one
  Join join = Join::Comma;
  ExpressionPtr on;
};

struct SelectItem {
  ExpressionPtr expression;  ///< null for a star
  Name starOf;               ///< of a star: the table, empty for all
  Name alias;
  Location where;
};

struct OrderItem {
  ExpressionPtr expression;
  bool descending = false;
};

/// One SELECT of a statement, without its ORDER BY.
struct Core {
  Location where;
  bool distinct = false;
  std::optional<LiteralValue> top;
  std::vector<SelectItem> items;
  std::vector<Source> sources;
  ExpressionPtr filter;
  std::vector<ExpressionPtr> groupBy;
  ExpressionPtr having;
};

struct Select {
  std::vector<Core> cores;     ///< more than one: joined by UNION
  std::vector<bool> unionAll;  ///< between a core and the next
  std::vector<OrderItem> order;
};

struct Insert {
  TableName table;
  std::vector<Name> columns;
  std::vector<std::vector<ExpressionPtr>> rows;
  std::vector<Location> rowPlaces;
  SelectPtr select;
};

struct Update {
  TableName table;
  std::vector<std::pair<Name, ExpressionPtr>> changes;
  ExpressionPtr filter;
};

struct Delete {
  TableName table;
  ExpressionPtr filter;
};

struct ColumnDeclaration {
  Name name;
  TypeName type;
  std::optional<bool> nullable;
  bool identity = false;
};

struct KeyDeclaration {
  bool primary = false;  ///< else UNIQUE
  std::vector<Name> columns;
  Location where;
};

struct CreateTable {
  TableName table;
  std::vector<ColumnDeclaration> columns;
  std::vector<KeyDeclaration> keys;
};

struct CreateIndex {
  bool unique = false;
  Name name;
  TableName table;
  std::vector<std::pair<Name, bool>> columns;  ///< and whether descending
};

struct DropTable {
  TableName table;
};

using Statement = std::variant<Select, Insert, Update, Delete, CreateTable, CreateIndex, DropTable>;

}  // namespace korvantes::tsql::syntax
