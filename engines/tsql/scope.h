#pragma once

#include <string>
#include <utility>
#include <vector>

#include "engines/tsql/catalogue.h"
#include "engines/tsql/syntax.h"

namespace korvantes::tsql {

/// A table as one SELECT, UPDATE or DELETE sees it.
struct ScopeSource {
  int number = 0;
  const TableDefinition* table = nullptr;
  std::string name;  ///< the alias, or the table's name
};

/// The names that an expression may use: the sources of its own SELECT, then those around it.
struct Scope {
  Scope* outer = nullptr;
  std::vector<ScopeSource> sources;

  /// Where aggregates are allowed: the select list, HAVING and ORDER BY.
  bool aggregatesAllowed = false;
  bool insideAggregate = false;
  /// Rows are grouped: outside aggregates only the columns of GROUP BY have one value.
  bool grouped = false;
  std::vector<std::pair<int, std::string>> groupColumns;

  /// Columns found here and in outer scopes so far; they decide whether an aggregate belongs to
  /// this scope.
  int ownReferences = 0;

  /// Adds a source; two of one name are refused.
  void add(ScopeSource source, Location where);
};

struct FoundColumn {
  int source = 0;
  const ColumnDefinition* column = nullptr;
};

/// Finds a column from the innermost scope outwards. Throws Refusal for an unknown or ambiguous
/// name and for a column that has no single value in its group.
FoundColumn findColumn(Scope& scope, const syntax::ColumnName& name);

/// The sources that a star takes its columns from: one by its name, or all for an empty name.
std::vector<const ScopeSource*> starSources(const Scope& scope, const syntax::Name& name,
                                            Location where);

}  // namespace korvantes::tsql
