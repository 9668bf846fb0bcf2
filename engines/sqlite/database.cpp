#include "engines/sqlite/database.h"

#include <array>
#include <utility>

#include "engines/sqlite/functions.h"
#include "engines/tsql/problem.h"

namespace korvantes::sqlite {

namespace {

struct Sentence {
  int code;
  const char* words;
};

/// What the user reads before SQLite's own words, by primary code.
constexpr std::array<Sentence, 10> kSentences{{
    {SQLITE_BUSY, "La base de datos está ocupada por otro usuario"},
    {SQLITE_LOCKED, "La base de datos está ocupada por otro usuario"},
    {SQLITE_FULL, "El disco está lleno"},
    {SQLITE_IOERR, "Error de lectura o escritura en el disco"},
    {SQLITE_READONLY, "La base de datos es de solo lectura"},
    {SQLITE_CANTOPEN, "No se puede abrir la base de datos"},
    {SQLITE_NOTADB, "El fichero no es una base de datos"},
    {SQLITE_CORRUPT, "La base de datos está dañada"},
    {SQLITE_CONSTRAINT, "Los datos no cumplen una restricción de la tabla"},
    {SQLITE_NOMEM, "No hay memoria suficiente"},
}};

std::string wordsFor(int code, const std::string& engineWords) {
  for (const Sentence& sentence : kSentences) {
    if (sentence.code == (code & 0xFF)) return sentence.words + (" (" + engineWords + ")");
  }
  return engineWords;
}

constexpr long kNoTransaction = 3903;  // the server's number for a ROLLBACK without a BEGIN
constexpr long kTransactionOpen = 3988;
constexpr long kTransactionLost = 3998;

}  // namespace

Database::Database(const std::string& file, const std::string& partner, int busyMilliseconds) {
  constexpr int kFlags = SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_NOFOLLOW;
  sqlite3* connection = nullptr;
  const int code = sqlite3_open_v2(file.c_str(), &connection, kFlags, nullptr);
  connection_.reset(connection);
  if (code != SQLITE_OK) throw failure(code, {});
  sqlite3_extended_result_codes(raw(), 1);
  sqlite3_busy_timeout(raw(), busyMilliseconds);
  registerFunctions(*this);
  configure("main");
  if (partner.empty()) return;
  Statement attach(*this, "ATTACH ?1 AS Vespara", {});
  const tsql::StoredValue path = partner;
  attach.bind(1, path);
  attach.step({});
  hasPartner_ = true;
  configure("Vespara");
}

void Database::configure(const std::string& schema) {
  constexpr const char* kCacheKibibytes = "-16384";
  run("PRAGMA " + schema + ".journal_mode=WAL");
  run("PRAGMA " + schema + ".synchronous=FULL");
  run("PRAGMA " + schema + ".cache_size=" + kCacheKibibytes);
}

void Database::run(const std::string& text, std::string_view subject) {
  Statement statement(*this, text, subject);
  while (statement.step(subject)) {
  }
}

ado::Error Database::failure(int code, std::string_view subject) {
  if (const auto met = std::exchange(functionFailure_, std::nullopt)) {
    return {met->number(), met->what(), subject};
  }
  if (!raw()) return {code, wordsFor(code, sqlite3_errstr(code)), subject};
  const int extended = sqlite3_extended_errcode(raw());
  const std::string words = sqlite3_errmsg(raw());
  if (words == "integer overflow") {  // of SUM, the one arithmetic that is SQLite's own
    const auto overflow = tsql::failure(tsql::Problem::Overflow);
    return {overflow.number(), overflow.what(), subject};
  }
  return {extended, wordsFor(extended, words), subject};
}

Statement::Statement(Database& database, const std::string& text, std::string_view subject)
    : database_(&database) {
  sqlite3_stmt* statement = nullptr;
  const int code = sqlite3_prepare_v3(database.raw(), text.data(), static_cast<int>(text.size()),
                                      SQLITE_PREPARE_PERSISTENT, &statement, nullptr);
  if (code != SQLITE_OK) throw database.failure(code, subject);
  statement_.reset(statement);
}

void Statement::bind(int index, const tsql::StoredValue& value) {
  struct Binder {
    sqlite3_stmt* statement;
    int index;
    int operator()(std::monostate) const { return sqlite3_bind_null(statement, index); }
    int operator()(std::int64_t number) const {
      return sqlite3_bind_int64(statement, index, number);
    }
    int operator()(const std::string& text) const {
      return sqlite3_bind_text64(statement, index, text.data(), text.size(), SQLITE_STATIC,
                                 SQLITE_UTF8);
    }
    int operator()(const ado::Bytes& bytes) const {
      // A null pointer would bind Null in place of no bytes.
      if (bytes.empty()) return sqlite3_bind_zeroblob(statement, index, 0);
      return sqlite3_bind_blob64(statement, index, bytes.data(), bytes.size(), SQLITE_STATIC);
    }
  };
  const int code = std::visit(Binder{raw(), index}, value);
  if (code != SQLITE_OK) throw database_->failure(code, {});
}

bool Statement::step(std::string_view subject) {
  const int code = sqlite3_step(raw());
  if (code == SQLITE_ROW) return true;
  if (code == SQLITE_DONE) return false;
  const ado::Error error = database_->failure(code, subject);
  reset();
  throw error;
}

void Statement::reset() {
  sqlite3_reset(raw());
  sqlite3_clear_bindings(raw());
}

void Transaction::begin() {
  if (database_->inTransaction()) {
    throw ado::Error(kTransactionOpen, "Ya hay una transacción abierta");
  }
  // Immediate: a second user waits here, not in the middle of a save.
  database_->run("BEGIN IMMEDIATE");
  begun_ = true;
}

void Transaction::commit() {
  requireNotLost("COMMIT");
  if (!database_->inTransaction()) {
    throw ado::Error(kNoTransaction, "No hay ninguna transacción abierta");
  }
  database_->run("COMMIT");
  begun_ = false;
}

void Transaction::rollback() {
  if (isLost()) {
    begun_ = false;
    return;
  }
  if (!database_->inTransaction()) {
    throw ado::Error(kNoTransaction, "No hay ninguna transacción abierta");
  }
  try {
    database_->run("ROLLBACK");
  } catch (const ado::Error&) {
    if (database_->inTransaction()) throw;
  }
  begun_ = false;
}

bool Transaction::isOpen() const {
  const bool open = database_->inTransaction();
  if (!open) begun_ = false;
  return open;
}

void Transaction::requireNotLost(std::string_view subject) const {
  if (!isLost()) return;
  throw ado::Error(kTransactionLost,
                   "La transacción ha sido anulada por un error anterior; no se ha guardado nada",
                   subject);
}

}  // namespace korvantes::sqlite
