#include "engines/sqlite/sqlite_connection.h"

#include <filesystem>
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

/// Resets a statement for its next use, whether its run succeeds or fails.
class Run {
 public:
  explicit Run(Statement& statement) : statement_(&statement) {}
  ~Run() { statement_->reset(); }
  Run(const Run&) = delete;
  Run& operator=(const Run&) = delete;

 private:
  Statement* statement_;
};

/// An open company file and what is known of the shared one beside it.
struct Opened {
  std::shared_ptr<Session> session;
  DatabaseFiles files;
};

[[noreturn]] void refuseToOpen(const std::string& path, Content content) {
  const char* words = content == Content::Missing ? "el fichero no existe"
                      : content == Content::Empty ? "el fichero está vacío (0 bytes)"
                                                  : "no tiene las tablas del programa";
  throw ado::Error(SQLITE_CANTOPEN, "No se puede abrir la base de datos " + path + ": " + words);
}

/// Looks at both files before it creates or changes either.
Opened openFiles(const std::string& path, const OpenOptions& options) {
  DatabaseFiles files = databaseFilesOf(path);
  const Content company = contentOf(files.file);
  const Content shared = contentOf(files.partner);
  requireNotForeign(files.file, company);
  if (options.create) {
    requireNotForeign(files.partner, shared);
    if (shared == Content::Missing) makeFile(files.partner);
    if (company == Content::Missing) makeFile(files.file);
  } else if (company != Content::Ours) {
    refuseToOpen(files.file, company);
  }
  auto session = std::make_shared<Session>(files.file, options.busyMilliseconds);
  if (options.create || shared == Content::Ours) session->database.attach(files.partner);
  return {std::move(session), std::move(files)};
}

/// Why statements on the shared tables cannot run while the shared file is not attached.
ado::Error sharedMissing(const DatabaseFiles& files, std::string_view text) {
  const std::filesystem::path shared = files.partner;
  const std::string name = "«" + shared.filename().string() + "»";
  const std::string folder = "«" + shared.parent_path().string() + "»";
  std::string words;
  switch (contentOf(files.partner)) {
    case Content::Missing:
      words = "No se encuentra la base de datos compartida " + name +
              ": debe estar en la carpeta " + folder + ", junto a «" +
              std::filesystem::path(files.file).filename().string() + "»";
      break;
    case Content::Foreign:
      words = "El fichero " + name + " de la carpeta " + folder +
              " no es la base de datos compartida, sino de otro programa";
      break;
    case Content::Ours:
      words = "La base de datos compartida " + name + " de la carpeta " + folder +
              " acaba de volver a su sitio: repita la operación";
      break;
    default:
      words = "La base de datos compartida " + name + " de la carpeta " + folder +
              " está vacía: le faltan las tablas";
      break;
  }
  return {ado::ErrorKind::SharedMissing, SQLITE_CANTOPEN, words, text};
}

}  // namespace

struct SqliteConnection::Impl {
  explicit Impl(Opened opened)
      : session(std::move(opened.session)),
        files(std::move(opened.files)),
        store(session->database) {
    reloadCatalogue();
  }

  void reloadCatalogue();
  bool refreshCatalogue();
  bool attachShared();
  tsql::BoundStatement compile(std::string_view text);
  ado::Error explained(const ado::Error& error, std::string_view text) const;
  Statement& prepared(const tsql::BoundStatement& bound, std::string_view text);
  void define(tsql::BoundStatement bound, std::string_view text);

  std::shared_ptr<Session> session;
  DatabaseFiles files;
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
  definedInTransaction = definedInTransaction && session->database.inTransaction();
}

/// Loads what other connections have declared or dropped. Returns whether anything changed.
bool SqliteConnection::Impl::refreshCatalogue() {
  // Tables created in a transaction that SQLite rolled back on its own are gone too.
  const bool undone = definedInTransaction && !session->database.inTransaction();
  if (!undone && store.version() == catalogueVersion) return false;
  reloadCatalogue();
  return true;
}

/// Attaches a shared file that was brought back after the company's file was opened.
bool SqliteConnection::Impl::attachShared() {
  Database& database = session->database;
  if (database.hasPartner() || database.inTransaction()) return false;
  if (contentOf(files.partner) != Content::Ours) return false;
  statements.clear();
  database.attach(files.partner);
  return true;
}

tsql::BoundStatement SqliteConnection::Impl::compile(std::string_view text) {
  // Tables created in a transaction that SQLite rolled back on its own are gone too.
  if (definedInTransaction && !session->database.inTransaction()) reloadCatalogue();
  try {
    return compiler.compile(text);
  } catch (const ado::Error& error) {
    // Another connection may have made the table that is missing here.
    const bool attached = error.kind() == ado::ErrorKind::SharedMissing && attachShared();
    if (!refreshCatalogue() && !attached) throw explained(error, text);
  }
  try {
    return compiler.compile(text);
  } catch (const ado::Error& error) {
    throw explained(error, text);
  }
}

/// Names the shared file where the compiler can name only its table.
ado::Error SqliteConnection::Impl::explained(const ado::Error& error, std::string_view text) const {
  const bool unattached =
      error.kind() == ado::ErrorKind::SharedMissing && !session->database.hasPartner();
  return unattached ? sharedMissing(files, text) : error;
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

void SqliteConnection::Impl::define(tsql::BoundStatement bound, std::string_view text) {
  // Load what others have declared before changing the catalogue's version.
  if (refreshCatalogue()) bound = compiler.compile(text);
  const std::string target =
      bound.statement->created ? bound.statement->created->database : bound.statement->database;
  if (!target.empty() && !session->database.hasPartner()) {
    if (!attachShared()) throw sharedMissing(files, text);
    reloadCatalogue();
    bound = compiler.compile(text);
  }
  const tsql::CompiledStatement& compiled = *bound.statement;
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
    : impl_(std::make_unique<Impl>(openFiles(path, options))) {}

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
      impl_->session->transaction.requireWritable(text);
      Statement& statement = impl_->prepared(bound, text);
      const Run run(statement);
      statement.step(text);
      if (rowsAffected) *rowsAffected = sqlite3_changes64(impl_->session->database.raw());
      return {};
    }
    default:
      impl_->session->transaction.requireWritable(text);
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
    throw ado::Error(ado::ErrorKind::Syntax, kNotUpdatable,
                     "Solo se puede modificar una tabla con clave, y una sola", text);
  }
  const auto writer = std::make_shared<RowUpdate>(impl_->session, *table);
  Statement& statement = impl_->prepared(bound, text);
  const Run run(statement);
  ado::Recordset rows = readRows(statement, compiled, text, writer);
  writer->rememberKey(rows);
  return rows;
}

bool SqliteConnection::hasTable(std::string_view database, std::string_view table) {
  impl_->refreshCatalogue();
  return impl_->catalogue->find(database, table) != nullptr;
}

bool holdsTables(const std::string& path) {
  const DatabaseFiles files = databaseFilesOf(path);
  const Content content = contentOf(files.file);
  requireNotForeign(files.file, content);
  return content == Content::Ours;
}

}  // namespace korvantes::sqlite
