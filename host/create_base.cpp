#include "host/create_base.h"

#include <algorithm>
#include <memory>

#include "data/schema.h"
#include "engines/sqlite/sqlite_connection.h"
#include "engines/tsql/compiler.h"
#include "runtime/ado/transaction.h"
#include "sample/data.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

constexpr std::string_view kCompany;
constexpr std::string_view kShared = tsql::kSharedDatabase;

/// A statement of the schema, and the table that it creates or gives an index to.
struct Declaration {
  std::string statement;
  std::string database;
  std::string table;
};

const std::vector<Declaration>& declarations() {
  static const std::vector<Declaration> kAll = [] {
    std::vector<Declaration> all;
    const auto catalogue = std::make_shared<tsql::Catalogue>();
    tsql::Compiler compiler(catalogue);
    for (std::string& statement : tsql::splitStatements(data::kSchema)) {
      const auto compiled = compiler.compile(statement).statement;
      if (compiled->created) catalogue->add(*compiled->created);
      all.push_back({std::move(statement), compiled->database, compiled->table});
    }
    return all;
  }();
  return kAll;
}

std::vector<Declaration> missingIn(const Database& base, std::string_view database) {
  std::vector<Declaration> missing;
  for (const Declaration& each : declarations())
    if (each.database == database && !base.hasTable(each.database, each.table))
      missing.push_back(each);
  return missing;
}

bool hasNone(const Database& base, std::string_view database) {
  return std::none_of(declarations().begin(), declarations().end(), [&](const Declaration& each) {
    return each.database == database && base.hasTable(each.database, each.table);
  });
}

/// Whether the company's file holds the sample, with all its tables.
bool holdsSample(const Database& base) {
  return missingIn(base, kCompany).empty() && sample::isSample(*base.connection);
}

bool createTables(const Database& base, std::string_view database) {
  const std::vector<Declaration> missing = missingIn(base, database);
  for (const Declaration& each : missing) base.connection->Execute(each.statement);
  return !missing.empty();
}

/// Whether an existing base lacks what fillBase would put in. Throws Failure where that would be
/// sample data beside the user's own.
bool isIncomplete(const Database& base, BaseContents contents) {
  const bool lacksShared = !missingIn(base, kShared).empty();
  const bool lacksTables = lacksShared || !missingIn(base, kCompany).empty();
  if (contents == BaseContents::EmptyTables || hasNone(base, kCompany)) return lacksTables;
  const bool sample = holdsSample(base);
  if (lacksTables && !sample)
    throw Failure(
        "a la base " + inQuotes(base.name) +
        " le faltan tablas, pero no es de muestra; no se ha cambiado nada (la orden crear las "
        "crea vacías)");
  return sample && (lacksShared || sample::lacksSharedRows(*base.connection));
}

}  // namespace

CreatedBase createBase(const std::string& path, BaseContents contents) {
  if (sqlite::holdsTables(path) && !isIncomplete(openFile(path), contents)) return {};
  return fillBase(openFile(path, OpenMode::Create), contents);
}

CreatedBase fillBase(const Database& database, BaseContents contents) {
  ado::Connection& connection = *database.connection;
  const bool withSample = contents == BaseContents::SampleData;
  CreatedBase created;
  {
    ado::Transaction transaction(connection);
    created.shared = createTables(database, kShared);
    if (withSample && (hasNone(database, kCompany) || holdsSample(database)))
      created.shared = sample::loadSharedSample(connection) || created.shared;
    transaction.commit();
  }
  ado::Transaction transaction(connection);
  const bool fresh = hasNone(database, kCompany);
  created.company = createTables(database, kCompany);
  if (fresh && withSample) sample::loadCompanySample(connection);
  transaction.commit();
  return created;
}

void completeSample(const std::string& path) {
  if (sqlite::holdsTables(path)) {
    const Database base = openFile(path);
    const bool mayComplete = hasNone(base, kCompany) || holdsSample(base);
    if (!mayComplete || !isIncomplete(base, BaseContents::SampleData)) return;
  }
  createBase(path, BaseContents::SampleData);
}

std::vector<std::string> missingTables(const Database& database) {
  std::vector<std::string> names;
  for (const Declaration& each : missingIn(database, kCompany))
    if (names.empty() || names.back() != each.table) names.push_back(each.table);
  return names;
}

}  // namespace korvantes::host
