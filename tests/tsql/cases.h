#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/compiler.h"

namespace korvantes::tsql {

/// A line of a table of cases: a statement, and what stands behind "=> " on the next line.
struct Case {
  std::string statement;
  std::string expected;
};

/// Reads a table beside this file. Lines that begin with "--" and empty ones are comments.
std::vector<Case> casesOf(const std::string& file);

/// The tables of data/schema.sql.
std::shared_ptr<Catalogue> schema();

/// The words of the refusal; empty when the statement compiles.
std::string refusalOf(Compiler& compiler, std::string_view statement);

/// "Lca_Id int, Base money": the result's columns, '-' for one without a name.
std::string columnsOf(const CompiledStatement& statement);

}  // namespace korvantes::tsql
