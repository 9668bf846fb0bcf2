#include "engines/sqlite/sqlite_connection.h"

#include <unordered_map>
#include <utility>

#include "engines/sqlite/catalogue_store.h"
#include "engines/sqlite/database_file.h"
#include "engines/sqlite/row_reader.h"
#include "engines/sqlite/row_update.h"
#include "engines/tsql/compiler.h"

namespace korvantes::sqlite {

namespace {

constexpr long kNotUpdatable = 3251;

/// Frees a statement for its next use however its run ends.
class Run {
 public:
  explicit Run(Statement& statement) : statement_(&statement) {}
  ~Run() { statement_->reset(); }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

 private:
  Statement* statement_;
};

std::shared_ptr<Session> openSession(const std::string& path, const OpenOptions& options) {
  const DatabaseFiles files = findDatabaseFiles(path, options.create);
  return std::make_shared<Session>(files.file, files.partner, options.busyMilliseconds);
}

}  // namespace

struct SqliteConnection::Impl {
  Impl(const std::string& path, const OpenOptions& options)
      : session(openSession(path, options)), store(session->database) {
    reloadCatalogue();
  }

  void reloadCatalogue();
  tsql::BoundStatement compile(std::string_view text);
  Statement& prepared(const tsql::BoundStatement& bound, std::string_view text);
  void define(const tsql::BoundStatement& bound, std::string_view text);

  std::shared_ptr<Session> session;
  CatalogueStore store;
  std::shared_ptr<tsql::Catalogue> catalogue = std::make_shared<tsql::Catalogue>();
  tsql::Compiler compiler{catalogue};
  std::pair<std::int64_t, std::int64_t> catalogueVersion;
  bool definedInTransaction = false;

  /// A compiled statement, kept alive so that its address stays its own, and SQLite's form of it.
  struct Prepared {
    std::shared_ptr<const tsql::CompiledStatement> compiled;
    Statement statement;
  };
  std::unordered_map<const tsql::CompiledStatement*, Prepared> statements;
};

void SqliteConnection::Impl::reloadCatalogue() {
  statements.clear();
  compiler.clear();
  catalogueVersion = store.version();
  *catalogue = store.load();
  definedInTransaction = false;
}

tsql::BoundStatement SqliteConnection::Impl::compile(std::string_view text) {
  // Tables made in a transaction that SQLite gave up by itself are gone with it.
  if (definedInTransaction && !session->database.inTransaction()) reloadCatalogue();
  try {
    return compiler.compile(text);
  } catch (const ado::Error&) {
    // Another connection may have made the table that is missing here.
    if (store.version() == catalogueVersion) throw;
  }
  reloadCatalogue();
  return compiler.compile(text);
}

Statement& SqliteConnection::Impl::prepared(const tsql::BoundStatement& bound,
                                            std::string_view text) {
  constexpr std::size_t kMostStatements = 512;
  auto found = statements.find(bound.statement.get());
  if (found == statements.end()) {
    Statement statement(session->database, bound.statement->text, text);
    if (statements.size() >= kMostStatements) statements.clear();
    found =
        statements.emplace(bound.statement.get(), Prepared{bound.statement, std::move(statement)})
            .first;
  }
  Statement& statement = found->second.statement;
  int index = 0;
  for (const tsql::StoredValue& value : bound.parameters) statement.bind(++index, value);
  return statement;
}

void SqliteConnection::Impl::define(const tsql::BoundStatement& bound, std::string_view text) {
  const tsql::CompiledStatement& compiled = *bound.statement;
  const std::string& target = compiled.created ? compiled.created->database : compiled.database;
  if (!target.empty() && !session->database.hasPartner()) {
    throw ado::Error(SQLITE_CANTOPEN, "No se encuentra la base de datos compartida " + target,
                     text);
  }
  // A statement that is still prepared would lock the table it reads.
  statements.clear();
  Savepoint together(session->database);
  session->database.run(compiled.text, text);
  if (compiled.created) store.keep(*compiled.created, text);
  if (compiled.kind == tsql::StatementKind::DropTable) {
    store.remove(compiled.droppedDatabase, compiled.droppedTable);
  }
  together.release();

  const bool pending = definedInTransaction || session->database.inTransaction();
  const std::shared_ptr<const tsql::CompiledStatement> kept = bound.statement;
  if (kept->created) catalogue->add(*kept->created);
  if (kept->kind == tsql::StatementKind::DropTable) {
    catalogue->remove(kept->droppedDatabase, kept->droppedTable);
  }
  compiler.clear();
  catalogueVersion = store.version();
  definedInTransaction = pending;
}

SqliteConnection::SqliteConnection(const std::string& path, OpenOptions options)
    : impl_(std::make_unique<Impl>(path, options)) {}

SqliteConnection::~SqliteConnection() = default;

ado::Recordset SqliteConnection::Execute(std::string_view text, long long* rowsAffected) {
  impl_->session->transaction.requireNotLost(text);
  const tsql::BoundStatement bound = impl_->compile(text);
  switch (bound.statement->kind) {
    case tsql::StatementKind::Select: {
      Statement& statement = impl_->prepared(bound, text);
      const Run run(statement);
      if (rowsAffected) *rowsAffected = -1;
      return readRows(statement, *bound.statement, text);
    }
    case tsql::StatementKind::Insert:
    case tsql::StatementKind::Update:
    case tsql::StatementKind::Delete: {
      Statement& statement = impl_->prepared(bound, text);
      const Run run(statement);
      statement.step(text);
      if (rowsAffected) *rowsAffected = sqlite3_changes64(impl_->session->database.raw());
      return {};
    }
    default:
      impl_->define(bound, text);
      if (rowsAffected) *rowsAffected = 0;
      return {};
  }
}

void SqliteConnection::BeginTrans() {
  impl_->session->transaction.begin();
}

void SqliteConnection::CommitTrans() {
  impl_->session->transaction.commit();
  impl_->definedInTransaction = false;
}

void SqliteConnection::RollbackTrans() {
  impl_->session->transaction.rollback();
  if (impl_->definedInTransaction) impl_->reloadCatalogue();
}

bool SqliteConnection::inTransaction() const {
  return impl_->session->transaction.isOpen();
}

ado::Recordset SqliteConnection::OpenForUpdate(std::string_view text) {
  impl_->session->transaction.requireNotLost(text);
  const tsql::BoundStatement bound = impl_->compile(text);
  const tsql::CompiledStatement& compiled = *bound.statement;
  const bool oneTable = compiled.kind == tsql::StatementKind::Select && !compiled.table.empty();
  const auto* table =
      oneTable ? impl_->catalogue->find(compiled.database, compiled.table) : nullptr;
  if (!table || table->primaryKey.empty()) {
    throw ado::Error(kNotUpdatable, "Solo se puede modificar una tabla con clave, y una sola",
                     text);
  }
  const auto writer = std::make_shared<RowUpdate>(impl_->session, *table);
  Statement& statement = impl_->prepared(bound, text);
  const Run run(statement);
  ado::Recordset rows = readRows(statement, compiled, text, writer);
  writer->rememberKey(rows);
  return rows;
}

bool SqliteConnection::hasTables() const {
  return impl_->store.anyTable();
}

}  // namespace korvantes::sqlite
