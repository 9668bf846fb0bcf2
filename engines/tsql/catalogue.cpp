#include "engines/tsql/catalogue.h"

#include <algorithm>

#include "runtime/ado/error.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

namespace {

auto named(std::string_view database, std::string_view table) {
  return [database, table](const TableDefinition& candidate) {
    return ado::sameName(candidate.name, table) && ado::sameName(candidate.database, database);
  };
}

}  // namespace

std::optional<std::size_t> TableDefinition::find(std::string_view column) const {
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (ado::sameName(columns[i].name, column)) return i;
  }
  return std::nullopt;
}

const TableDefinition* Catalogue::find(std::string_view database, std::string_view table) const {
  const auto found = std::find_if(tables_.begin(), tables_.end(), named(database, table));
  return found == tables_.end() ? nullptr : &*found;
}

void Catalogue::add(TableDefinition table) {
  if (find(table.database, table.name) != nullptr) {
    throw ado::Error(ado::ErrorKind::Syntax, 2714,
                     "Ya existe una tabla de nombre «" + table.name + "».");
  }
  tables_.push_back(std::move(table));
}

void Catalogue::remove(std::string_view database, std::string_view table) {
  std::erase_if(tables_, named(database, table));
}

}  // namespace korvantes::tsql
