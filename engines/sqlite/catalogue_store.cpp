#include "engines/sqlite/catalogue_store.h"

#include <memory>
#include <vector>

#include "engines/tsql/compiler.h"
#include "engines/tsql/quoted_names.h"

namespace korvantes::sqlite {

namespace {

std::string schemaOf(const std::string& database) {
  return database.empty() ? "main" : database;
}

std::string storeIn(const std::string& database) {
  return tsql::qualifiedName(schemaOf(database), kCatalogueTable);
}

std::string textAt(const Statement& statement) {
  const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement.raw(), 0));
  return text ? text : "";
}

}  // namespace

tsql::Catalogue CatalogueStore::load() {
  const auto catalogue = std::make_shared<tsql::Catalogue>();
  tsql::Compiler compiler(catalogue);
  std::vector<std::string> databases{"main"};
  if (database_->hasPartner()) databases.emplace_back("Vespara");
  for (const std::string& database : databases) {
    if (database_->content(database) != Content::Ours) continue;
    Statement texts(*database_, "SELECT text FROM " + storeIn(database) + " ORDER BY position", {});
    while (texts.step({})) {
      const auto bound = compiler.compile(textAt(texts));
      if (bound.statement->created) catalogue->add(*bound.statement->created);
    }
  }
  return std::move(*catalogue);
}

void CatalogueStore::keep(const tsql::TableDefinition& table, std::string_view text) {
  database_->run("CREATE TABLE IF NOT EXISTS " + storeIn(table.database) +
                 " (position INTEGER PRIMARY KEY, name TEXT NOT NULL, text TEXT NOT NULL) STRICT");
  Statement insert(*database_,
                   "INSERT INTO " + storeIn(table.database) + " (name, text) VALUES (?1, ?2)", {});
  const tsql::StoredValue name = table.name;
  const tsql::StoredValue declaration = std::string(text);
  insert.bind(1, name);
  insert.bind(2, declaration);
  insert.step(text);
}

void CatalogueStore::remove(const std::string& database, const std::string& table) {
  Statement erase(*database_,
                  "DELETE FROM " + storeIn(database) + " WHERE name = ?1 COLLATE NOCASE", {});
  const tsql::StoredValue name = table;
  erase.bind(1, name);
  erase.step({});
}

std::pair<std::int64_t, std::int64_t> CatalogueStore::version() {
  return {database_->number("PRAGMA main.schema_version"),
          database_->hasPartner() ? database_->number("PRAGMA Vespara.schema_version") : 0};
}

Savepoint::Savepoint(Database& database)
    : database_(&database), outermost_(!database.inTransaction()) {
  database.run("SAVEPOINT korvantes_definition");
}

Savepoint::~Savepoint() {
  // Already gone if SQLite rolled back the whole transaction on its own.
  if (released_ || !database_->inTransaction()) return;
  try {
    if (outermost_) {
      database_->run("ROLLBACK");
    } else {
      database_->run("ROLLBACK TO korvantes_definition");
      database_->run("RELEASE korvantes_definition");
    }
  } catch (const ado::Error&) {
    // The caller already gets the failure that led here.
  }
}

void Savepoint::release() {
  database_->run("RELEASE korvantes_definition");
  released_ = true;
}

}  // namespace korvantes::sqlite
