#pragma once

#include <memory>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <string_view>
#include <vector>

#include "engines/sqlite/database_file.h"
#include "engines/sqlite/file_place.h"
#include "engines/tsql/value.h"
#include "runtime/ado/error.h"

namespace korvantes::sqlite {

class Database;

/// A prepared statement. It must not outlive its database.
class Statement {
 public:
  Statement() = default;
  /// `subject` is the text that the user sent, for errors; `text` is SQLite's.
  Statement(Database& database, const std::string& text, std::string_view subject);

  /// Binds parameter `index`, from 1. The value must stay in place until the reset.
  void bind(int index, const tsql::StoredValue& value);
  /// Goes to the next row; false at the end. Throws Error and resets the statement if it fails.
  bool step(std::string_view subject);
  /// Releases rows and values, so that the statement blocks nothing and can run again.
  void reset();

  sqlite3_stmt* raw() const { return statement_.get(); }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  Database* database_ = nullptr;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// An open database file, with its partner, if any, attached as Vespara.
class Database {
 public:
  struct ReadOnly {};

  /// Opens an existing file, given by its absolute path. Throws Error; a database of another
  /// program is refused before a byte of it changes.
  Database(const std::string& file, int busyMilliseconds);
  /// Opens a file by an SQLite URI, for inspection only.
  Database(const std::string& uri, ReadOnly mode);

  // The functions registered with it hold its address.
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  /// Attaches the shared file, given by its absolute path. Throws Error, as the constructor does;
  /// no transaction may be open.
  void attach(const std::string& partner);
  bool hasPartner() const { return hasPartner_; }

  /// What the file of a schema ("main", "Vespara") holds: Blank, Ours or Foreign.
  Content content(const std::string& schema);

  /// Throws Error of kind FileReplaced if an open file, or its log, is no longer the one that its
  /// path leads to: writes would then be lost. Costs one system call per file.
  void requireInPlace(std::string_view subject) const;

  /// True while a transaction is open.
  bool inTransaction() const { return sqlite3_get_autocommit(connection_.get()) == 0; }

  /// Runs a text that returns no rows.
  void run(const std::string& text, std::string_view subject = {});
  /// Runs a text that returns one whole number; 0 if it returns no row.
  std::int64_t number(const std::string& text);

  /// The failure that SQLite reports, or the one that a function of ours reported before.
  ado::Error failure(int code, std::string_view subject);
  /// Called by functions inside a running statement; failure() prefers it to SQLite's words.
  void keepFunctionFailure(ado::Error error) { functionFailure_ = std::move(error); }

  sqlite3* raw() const { return connection_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  void open(const std::string& name, int flags, int busyMilliseconds);
  void configure(const std::string& schema, const std::string& path);
  void switchToLog(const std::string& schema);

  std::unique_ptr<sqlite3, Close> connection_;
  std::optional<ado::Error> functionFailure_;
  std::vector<FilePlace> places_;
  bool hasPartner_ = false;
  int busyMilliseconds_ = 0;
};

/// The transaction as seen by its caller. After some failures (a full disk) SQLite rolls a
/// transaction back on its own; later statements must then not be stored outside it.
class Transaction {
 public:
  explicit Transaction(Database& database) : database_(&database) {}

  void begin();
  void commit();
  void rollback();
  /// Whether one is really open. A caller that got False here knows that it is gone.
  bool isOpen() const;
  /// Throws Error if the transaction was lost and the caller does not know yet.
  void requireNotLost(std::string_view subject) const;
  /// Call it before every write. Throws Error as requireNotLost and Database::requireInPlace do.
  /// Inside a transaction, where commit makes sure of the files before anything is stored, it looks
  /// at them for the first writes and then now and then.
  void requireWritable(std::string_view subject);

 private:
  bool isLost() const { return begun_ && !database_->inTransaction(); }

  Database* database_;
  mutable bool begun_ = false;
  unsigned writes_ = 0;  ///< of the open transaction
};

}  // namespace korvantes::sqlite
