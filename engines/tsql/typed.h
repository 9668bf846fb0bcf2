#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <variant>
#include <vector>

#include "engines/tsql/catalogue.h"
#include "engines/tsql/literal.h"
#include "engines/tsql/types.h"
#include "engines/tsql/value.h"

/// The typed tree: names are resolved, expressions have the server's types, and each change of
/// scale or type is an explicit operation. A writer only has to put it into its engine's SQL.
namespace korvantes::tsql::typed {

struct Expression;
struct Select;
using ExpressionPtr = std::unique_ptr<Expression>;
using SelectPtr = std::unique_ptr<Select>;

/// The operation of an expression on its operands. Numbers are units; the scales and lengths that
/// an operation also needs are in `numbers`, in the order given here.
enum class Operation {
  Add,
  Subtract,
  SubtractRound,  ///< scale, places: the difference, then rounded
  Multiply,
  MultiplyRound,  ///< from, to, places: rescaled, then rounded
  Divide,         ///< shift
  Modulo,
  Absolute,
  Rescale,       ///< from, to
  RescaleRound,  ///< from, to, places
  Round,         ///< scale, places
  CheckInt,      ///< within 32 bits
  CheckDigits,   ///< digits
  ToBit,
  Concatenate,
  Upper,
  Lower,
  TrimLeft,
  TrimRight,
  Length,
  NumberToText,  ///< from and to: see the expression's and its operand's types
  TextToNumber,
  TextToDate,
  DateToText,      ///< yyyy-mm-dd
  DateToDayFirst,  ///< dd/mm/yyyy
  FixText,         ///< cut and padded to the expression's type
  StoreText,       ///< the same, too long an error; `column` names it
  RefuseNull,      ///< a Null is an error; `column` names it
  Coalesce,
};

struct Column {
  int source = 0;  ///< number of the source in the whole statement
  std::string name;
};

struct Constant {
  StoredValue value;
};

/// A lifted literal, numbered from 1.
struct Parameter {
  int number = 0;
};

struct Operate {
  Operation operation;
  std::vector<ExpressionPtr> operands;
  std::array<int, 3> numbers{};
  std::string column;
};

enum class AggregateKind { Sum, Count, CountRows, Min, Max };
struct Aggregate {
  AggregateKind kind;
  bool distinct = false;
  ExpressionPtr operand;  ///< null for CountRows
};

struct Case {
  std::vector<std::pair<ExpressionPtr, ExpressionPtr>> branches;  ///< condition, result
  ExpressionPtr otherwise;                                        ///< may be null
};

struct Subquery {
  SelectPtr select;
};

enum class Comparison { Equal, NotEqual, Less, LessEqual, Greater, GreaterEqual };
struct Compare {
  Comparison op;
  ExpressionPtr left, right;
};
struct Logical {
  bool conjunction = true;  ///< AND, else OR
  ExpressionPtr left, right;
};
struct Not {
  ExpressionPtr operand;
};
struct InList {
  ExpressionPtr subject;
  std::vector<ExpressionPtr> items;
};
struct InSelect {
  ExpressionPtr subject;
  SelectPtr select;
};
struct Exists {
  SelectPtr select;
};
struct Between {
  ExpressionPtr subject, low, high;
};
struct Like {
  ExpressionPtr subject, pattern;
};
struct IsNull {
  ExpressionPtr subject;
};

/// Conditions carry the type of a bit; whether an expression is a condition follows from its node.
struct Expression {
  Type type;
  std::variant<Column, Constant, Parameter, Operate, Aggregate, Case, Subquery, Compare, Logical,
               Not, InList, InSelect, Exists, Between, Like, IsNull>
      node;
};

enum class Join { Comma, Inner, Left };
struct Source {
  int number = 0;
  std::string database, table;
  Join join = Join::Comma;
  ExpressionPtr on;
};

struct Item {
  ExpressionPtr value;
  std::string name;  ///< empty for an expression without an alias
};

struct Order {
  std::size_t position = 0;  ///< of a result column, from 1; 0 for an expression
  ExpressionPtr value;
  Type type;
  bool descending = false;
};

struct Core {
  bool distinct = false;
  bool oneRow = false;  ///< by its form: an aggregate without groups, TOP 1, no table
  std::optional<std::int64_t> top;
  std::vector<Item> items;
  std::vector<Source> sources;
  ExpressionPtr filter;
  std::vector<ExpressionPtr> groupBy;
  ExpressionPtr having;
};

struct Select {
  std::vector<Core> cores;
  std::vector<bool> unionAll;
  std::vector<Order> order;
};

struct Insert {
  std::string database, table;
  std::vector<std::string> columns;
  std::vector<std::vector<ExpressionPtr>> rows;
  SelectPtr select;
};

struct Update {
  Source target;
  std::vector<std::pair<std::string, ExpressionPtr>> changes;
  ExpressionPtr filter;
};

struct Delete {
  Source target;
  ExpressionPtr filter;
};

struct CreateTable {
  TableDefinition table;
  std::vector<std::vector<std::string>> uniqueKeys;
};

struct CreateIndex {
  bool unique = false;
  std::string name, database, table;
  std::vector<std::pair<std::string, bool>> columns;  ///< and whether descending
};

struct DropTable {
  std::string database, table;
};

/// What the binder makes of one text.
struct Statement {
  std::variant<Select, Insert, Update, Delete, CreateTable, CreateIndex, DropTable> node;
  std::vector<ParameterUse> parameters;
};

}  // namespace korvantes::tsql::typed
