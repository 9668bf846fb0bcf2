#include <algorithm>

#include "engines/tsql/binder.h"
#include "runtime/ado/text_order.h"

namespace korvantes::tsql {

namespace {

const ColumnDefinition& columnOf(const TableDefinition& table, const syntax::Name& name) {
  const auto position = table.find(name.text);
  if (!position) refuse(Problem::NoColumn, name.where, name.text);
  const auto& column = table.columns[*position];
  if (column.identity) refuse(Problem::IdentityValue, name.where, name.text);
  return column;
}

void addOnce(std::vector<const ColumnDefinition*>& columns, const ColumnDefinition& column,
             const syntax::Name& name) {
  if (std::find(columns.begin(), columns.end(), &column) != columns.end()) {
    refuse(Problem::DuplicateColumn, name.where, name.text);
  }
  columns.push_back(&column);
}

/// The columns that an INSERT sets: those it names, or all except one numbered by the database.
std::vector<const ColumnDefinition*> insertedColumns(const TableDefinition& table,
                                                     const syntax::Insert& insert) {
  std::vector<const ColumnDefinition*> columns;
  for (const auto& name : insert.columns) addOnce(columns, columnOf(table, name), name);
  for (const auto& column : table.columns) {
    if (insert.columns.empty()) {
      if (!column.identity) columns.push_back(&column);
      continue;
    }
    const bool given = std::find(columns.begin(), columns.end(), &column) != columns.end();
    if (!given && !column.nullable && !column.identity) {
      refuse(Problem::MissingValue, insert.table.table.where, column.name);
    }
  }
  return columns;
}

void requireCount(std::size_t columns, std::size_t values, Location where) {
  if (columns == values) return;
  refuse(Problem::ValueCount, where, {},
         std::to_string(columns) + (columns == 1 ? " columna y " : " columnas y ") +
             std::to_string(values) + (values == 1 ? " valor" : " valores"));
}

}  // namespace

typed::Statement Binder::bind(const syntax::Statement& statement) {
  typed::Statement result;
  std::visit([&](const auto& node) { result.node = bind(node); }, statement);
  result.parameters = std::move(parameters_);
  return result;
}

const TableDefinition& Binder::tableOf(const syntax::TableName& name) const {
  if (!name.database.empty() && !ado::sameName(name.database.text, kSharedDatabase)) {
    refuse(Problem::NoDatabase, name.database.where, name.database.text);
  }
  const auto* table = catalogue_.find(name.database.text, name.table.text);
  if (table == nullptr) {
    refuse(name.database.empty() ? Problem::NoTable : Problem::NoSharedTable, name.table.where,
           name.table.text);
  }
  return *table;
}

typed::Source Binder::targetOf(const syntax::TableName& name) {
  const auto& table = tableOf(name);
  scope_->add({++sources_, &table, table.name}, name.table.where);
  return {sources_, table.database, table.name, typed::Join::Comma, nullptr};
}

typed::Insert Binder::bind(const syntax::Insert& insert) {
  const auto& table = tableOf(insert.table);
  const auto columns = insertedColumns(table, insert);
  typed::Insert result;
  result.database = table.database;
  result.table = table.name;
  for (const auto* column : columns) result.columns.push_back(column->name);
  for (std::size_t r = 0; r < insert.rows.size(); ++r) {
    requireCount(columns.size(), insert.rows[r].size(), insert.rowPlaces[r]);
    auto& row = result.rows.emplace_back();
    for (std::size_t i = 0; i < columns.size(); ++i) {
      row.push_back(bindAssigned(*insert.rows[r][i], *columns[i]));
    }
  }
  if (!insert.select) return result;
  result.select = std::make_unique<typed::Select>(bindSelect(*insert.select, nullptr));
  const auto where = insert.select->cores.front().where;
  for (auto& core : result.select->cores) {
    requireCount(columns.size(), core.items.size(), where);
    for (std::size_t i = 0; i < columns.size(); ++i) {
      core.items[i].value =
          assigned(std::move(core.items[i].value), *columns[i], {where, columns[i]->name});
    }
  }
  return result;
}

typed::Update Binder::bind(const syntax::Update& update) {
  Scope scope;
  scope_ = &scope;
  typed::Update result;
  result.target = targetOf(update.table);
  const auto& table = tableOf(update.table);
  std::vector<const ColumnDefinition*> columns;
  for (const auto& [name, value] : update.changes) {
    addOnce(columns, columnOf(table, name), name);
    result.changes.emplace_back(columns.back()->name, bindAssigned(*value, *columns.back()));
  }
  if (update.filter) result.filter = bindCondition(*update.filter);
  return result;
}

typed::Delete Binder::bind(const syntax::Delete& statement) {
  Scope scope;
  scope_ = &scope;
  typed::Delete result;
  result.target = targetOf(statement.table);
  if (statement.filter) result.filter = bindCondition(*statement.filter);
  return result;
}

}  // namespace korvantes::tsql
