#include "engines/sqlite/database.h"

#include <chrono>
#include <thread>
#include <utility>

#include "engines/sqlite/failure_words.h"
#include "engines/sqlite/functions.h"
#include "engines/tsql/problem.h"

namespace korvantes::sqlite {

namespace {

constexpr long kNoTransaction = 3903;  // the server's number for a ROLLBACK without a BEGIN
constexpr long kTransactionOpen = 3988;
constexpr long kTransactionLost = 3998;

}  // namespace

void Database::open(const std::string& name, int flags, int busyMilliseconds) {
  sqlite3* connection = nullptr;
  const int code = sqlite3_open_v2(name.c_str(), &connection,
                                   flags | SQLITE_OPEN_NOMUTEX | SQLITE_OPEN_NOFOLLOW, nullptr);
  connection_.reset(connection);
  if (code != SQLITE_OK) throw failure(code, {});
  sqlite3_extended_result_codes(raw(), 1);
  sqlite3_busy_timeout(raw(), busyMilliseconds);
  busyMilliseconds_ = busyMilliseconds;
}

Database::Database(const std::string& file, int busyMilliseconds) {
  open(file, SQLITE_OPEN_READWRITE, busyMilliseconds);
  registerFunctions(*this);
  configure("main", file);
}

Database::Database(const std::string& uri, ReadOnly) {
  constexpr int kBusyMilliseconds = 2000;
  open(uri, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI, kBusyMilliseconds);
  sqlite3_db_config(raw(), SQLITE_DBCONFIG_NO_CKPT_ON_CLOSE, 1, nullptr);
}

void Database::attach(const std::string& partner) {
  {
    Statement attach(*this, "ATTACH ?1 AS Vespara", {});
    const tsql::StoredValue path = partner;
    attach.bind(1, path);
    attach.step({});
  }
  try {
    configure("Vespara", partner);
  } catch (...) {
    sqlite3_exec(raw(), "DETACH Vespara", nullptr, nullptr, nullptr);
    throw;
  }
  hasPartner_ = true;
}

Content Database::content(const std::string& schema) {
  const std::string declared = "SELECT count(*) FROM " + schema + ".sqlite_master";
  if (number(declared) == 0) return Content::Blank;
  const std::string ours =
      std::string(" WHERE type = 'table' AND name = '") + kCatalogueTable + "'";
  return number(declared + ours) > 0 ? Content::Ours : Content::Foreign;
}

void Database::configure(const std::string& schema, const std::string& path) {
  // Once more, now that it is open for writing: before WAL mode changes the file.
  requireNotForeign(path, content(schema));
  constexpr const char* kCacheKibibytes = "-16384";
  switchToLog(schema);
  run("PRAGMA " + schema + ".synchronous=FULL");
  run("PRAGMA " + schema + ".cache_size=" + kCacheKibibytes);

  number("PRAGMA " + schema + ".schema_version");  // a first read opens the log
  const FilePlace file(path);
  int moved = 0;
  sqlite3_file_control(raw(), schema.c_str(), SQLITE_FCNTL_HAS_MOVED, &moved);
  if (moved != 0 || !file.isKnown()) throw fileReplaced(path, {});
  places_.push_back(file);
  // The log stays the same file while any connection is open.
  if (const FilePlace log(path + "-wal"); log.isKnown()) places_.push_back(log);
}

void Database::switchToLog(const std::string& schema) {
  using Clock = std::chrono::steady_clock;
  constexpr std::chrono::milliseconds kPause(10);
  const auto end = Clock::now() + std::chrono::milliseconds(busyMilliseconds_);
  // SQLite does not wait here on its own: if two connections open a new file at once, one fails.
  for (;;) {
    try {
      return run("PRAGMA " + schema + ".journal_mode=WAL");
    } catch (const ado::Error& error) {
      if (error.kind() != ado::ErrorKind::Busy || Clock::now() >= end) throw;
    }
    std::this_thread::sleep_for(kPause);
  }
}

void Database::requireInPlace(std::string_view subject) const {
  for (const FilePlace& place : places_) {
    if (!place.holds()) throw fileReplaced(place.path(), subject);
  }
}

void Database::run(const std::string& text, std::string_view subject) {
  Statement statement(*this, text, subject);
  while (statement.step(subject)) {
  }
}

std::int64_t Database::number(const std::string& text) {
  Statement statement(*this, text, {});
  return statement.step({}) ? sqlite3_column_int64(statement.raw(), 0) : 0;
}

ado::Error Database::failure(int code, std::string_view subject) {
  if (const auto met = std::exchange(functionFailure_, std::nullopt)) {
    return {met->kind(), met->number(), met->what(), subject};
  }
  if (!raw()) return describe(code, sqlite3_errstr(code), 0, subject);
  const int extended = sqlite3_extended_errcode(raw());
  const std::string words = sqlite3_errmsg(raw());
  if (words == "integer overflow") {  // of SUM, the one arithmetic that is SQLite's own
    const auto overflow = tsql::failure(tsql::Problem::Overflow);
    return {overflow.kind(), overflow.number(), overflow.what(), subject};
  }
  if (extended == SQLITE_READONLY_DBMOVED)
    return fileReplaced(sqlite3_db_filename(raw(), "main"), subject);
  return describe(extended, words, sqlite3_system_errno(raw()), subject);
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
      // A null pointer would bind Null instead of zero bytes.
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
    throw ado::Error(kTransactionOpen, "Hay otra operación sin terminar en la base de datos");
  }
  database_->requireInPlace("BEGIN");
  // Immediate: a second user waits here instead of in the middle of a save.
  database_->run("BEGIN IMMEDIATE");
  begun_ = true;
  writes_ = 0;
}

void Transaction::commit() {
  requireNotLost("COMMIT");
  if (!database_->inTransaction()) {
    throw ado::Error(kNoTransaction, "No hay ninguna operación abierta en la base de datos");
  }
  database_->requireInPlace("COMMIT");
  database_->run("COMMIT");
  begun_ = false;
}

void Transaction::rollback() {
  if (isLost()) {
    begun_ = false;
    return;
  }
  if (!database_->inTransaction()) {
    throw ado::Error(kNoTransaction, "No hay ninguna operación abierta en la base de datos");
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

void Transaction::requireWritable(std::string_view subject) {
  constexpr unsigned kFirstWrites = 8;
  constexpr unsigned kStride = 512;
  requireNotLost(subject);
  if (database_->inTransaction() && ++writes_ > kFirstWrites && writes_ % kStride != 0) return;
  database_->requireInPlace(subject);
}

void Transaction::requireNotLost(std::string_view subject) const {
  if (!isLost()) return;
  throw ado::Error(ado::ErrorKind::TransactionLost, kTransactionLost,
                   "La operación se ha anulado por un error anterior; no se ha guardado nada",
                   subject);
}

}  // namespace korvantes::sqlite
