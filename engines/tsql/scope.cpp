#include "engines/tsql/scope.h"

#include <algorithm>
#include <optional>

#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

namespace {

/// The column among the sources of one scope alone.
std::optional<FoundColumn> findHere(const Scope& scope, const syntax::ColumnName& name) {
  std::optional<FoundColumn> found;
  for (const auto& source : scope.sources) {
    if (!name.qualifier.empty() && !ado::sameName(source.name, name.qualifier.text)) continue;
    const auto position = source.table->find(name.column.text);
    if (!position) continue;
    if (found) refuse(Problem::Ambiguous, name.column.where, name.column.text);
    found = {source.number, &source.table->columns[*position]};
  }
  return found;
}

void requireGroupColumn(const Scope& scope, const FoundColumn& found, const syntax::Name& name) {
  if (!scope.grouped || !scope.aggregatesAllowed || scope.insideAggregate) return;
  const std::pair wanted(found.source, found.column->name);
  const auto& columns = scope.groupColumns;
  if (std::find(columns.begin(), columns.end(), wanted) == columns.end()) {
    refuse(Problem::NotGrouped, name.where, name.text);
  }
}

bool knowsSource(const Scope* scope, const std::string& name) {
  for (; scope != nullptr; scope = scope->outer) {
    for (const auto& source : scope->sources) {
      if (ado::sameName(source.name, name)) return true;
    }
  }
  return false;
}

}  // namespace

void Scope::add(ScopeSource source, Location where) {
  for (const auto& other : sources) {
    if (ado::sameName(other.name, source.name)) {
      refuse(Problem::DuplicateSource, where, source.name);
    }
  }
  sources.push_back(std::move(source));
}

FoundColumn findColumn(Scope& scope, const syntax::ColumnName& name) {
  for (Scope* here = &scope; here != nullptr; here = here->outer) {
    const auto found = findHere(*here, name);
    if (!found) continue;
    ++here->ownReferences;
    requireGroupColumn(*here, *found, name.column);
    return *found;
  }
  if (!name.qualifier.empty() && !knowsSource(&scope, name.qualifier.text)) {
    refuse(Problem::NoSource, name.qualifier.where, name.qualifier.text);
  }
  refuse(Problem::NoColumn, name.column.where, name.column.text);
}

std::vector<const ScopeSource*> starSources(const Scope& scope, const syntax::Name& name,
                                            Location where) {
  std::vector<const ScopeSource*> sources;
  for (const auto& source : scope.sources) {
    if (name.empty() || ado::sameName(source.name, name.text)) sources.push_back(&source);
  }
  if (sources.empty()) {
    refuse(Problem::NoSource, name.empty() ? where : name.where, name.empty() ? "*" : name.text);
  }
  return sources;
}

}  // namespace korvantes::tsql
