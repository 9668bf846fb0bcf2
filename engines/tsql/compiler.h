// engines/tsql: a compiler for the subset of T-SQL that the module and its host's database service
// send.
//
//   text -> lexer -> parser (unbound tree) -> binder (typed tree) -> writer (text of one engine)
//
// No step replaces text, and exact numbers never become binary floats: money and decimals are whole
// numbers of units whose scale is known at compile time. The docs page docs/sql-subset.md lists the
// syntax.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/catalogue.h"
#include "engines/tsql/value.h"
#include "runtime/ado/recordset.h"

namespace korvantes::tsql {

enum class StatementKind { Select, Insert, Update, Delete, CreateTable, CreateIndex, DropTable };

/// A statement in the SQL of one engine, ready to be prepared once and run many times.
struct CompiledStatement {
  StatementKind kind = StatementKind::Select;
  /// The engine's text, with ?1, ?2 … for the lifted literals.
  std::string text;
  /// Result columns, names as the statement wrote them; empty unless a SELECT.
  ado::FieldDefinitions fields;
  /// Type of each result column, in order.
  std::vector<Type> types;
  /// CREATE TABLE: what to add to the catalogue once it has run.
  std::optional<TableDefinition> created;
  /// DROP TABLE: database and name.
  std::string droppedDatabase, droppedTable;
  /// The table changed, or the one table a SELECT reads ("select * from AGE …"); empty for joins.
  std::string database, table;
};

/// A compiled statement together with this text's own literals, in the order of its parameters.
struct BoundStatement {
  std::shared_ptr<const CompiledStatement> statement;
  std::vector<StoredValue> parameters;
};

/// Compiles texts against a catalogue and keeps what it compiled.
///
/// The cache key is the text without its literals, so that the ten thousandth "… WHERE Cav_id =
/// 4711" costs one scan of the text, a hash and the conversion of its literals. Literals that
/// decide how the statement is compiled (a scale, the 2 of ROUND, the 100 of a division, TOP, a
/// length) stay part of the key.
///
/// Failures are ado::Errors in Spanish with the position (line and column from 1) and the word:
/// a text outside the subset or with a second statement, an unknown table or column, an ambiguous
/// name, incompatible types, a literal that is not a date or does not fit. Each has a kind: Syntax
/// for a wrong text, SharedMissing for an unknown shared table, Overflow and Constraint for values.
class Compiler {
 public:
  explicit Compiler(std::shared_ptr<Catalogue> catalogue);
  ~Compiler();
  Compiler(const Compiler&) = delete;
  Compiler& operator=(const Compiler&) = delete;

  BoundStatement compile(std::string_view text);

  /// Forgets all compiled statements. Call it after changing the catalogue.
  void clear();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

/// Cuts a file of statements into single ones: at lines that consist of GO, and at lines that end
/// in ';'. Comments between statements and empty pieces are dropped; quotes are respected.
std::vector<std::string> splitStatements(std::string_view file);

}  // namespace korvantes::tsql
