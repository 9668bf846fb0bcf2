#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/compiler.h"

namespace korvantes::tsql {

/// A case of a table: a statement, and the text after "=> " on the same line or the next one.
struct Case {
  std::string statement;
  std::string expected;
};

/// Reads a table from this folder. Empty lines and lines that begin with "-- " are comments.
std::vector<Case> casesOf(const std::string& file);

/// The tables of data/schema.sql.
std::shared_ptr<Catalogue> schema();

/// The message of the refusal; empty if the statement compiles.
std::string refusalOf(Compiler& compiler, std::string_view statement);

/// "Lca_Id int, Base money": the result's columns, '-' for one without a name.
std::string columnsOf(const CompiledStatement& statement);

}  // namespace korvantes::tsql
