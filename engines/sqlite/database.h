#pragma once

#include <memory>
#include <optional>
#include <sqlite3.h>
#include <string>
#include <string_view>

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

  /// Binds parameter `index`, from 1. The value must stay where it is until the reset.
  void bind(int index, const tsql::StoredValue& value);
  /// Goes to the next row; false at the end. Throws Error, and is reset then.
  bool step(std::string_view subject);
  /// Lets go of rows and values, so that it holds nothing up and can run again.
  void reset();

  sqlite3_stmt* raw() const { return statement_.get(); }

 private:
  struct Finalize {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
  };
  Database* database_ = nullptr;
  std::unique_ptr<sqlite3_stmt, Finalize> statement_;
};

/// An open database file and, where it is there, its partner attached as Vespara.
class Database {
 public:
  /// Both are absolute paths of existing files; no partner when it is empty.
  Database(const std::string& file, const std::string& partner, int busyMilliseconds);

  // The functions registered with it hold its address.
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  bool hasPartner() const { return hasPartner_; }
  /// True while a transaction is open.
  bool inTransaction() const { return sqlite3_get_autocommit(connection_.get()) == 0; }

  /// Runs a text without rows.
  void run(const std::string& text, std::string_view subject = {});

  /// The failure that SQLite reports now, or the one that a function of ours met before.
  ado::Error failure(int code, std::string_view subject);
  /// Called by functions inside a running statement; failure() prefers it to SQLite's words.
  void keepFunctionFailure(ado::Error error) { functionFailure_ = std::move(error); }

  sqlite3* raw() const { return connection_.get(); }

 private:
  struct Close {
    void operator()(sqlite3* connection) const { sqlite3_close_v2(connection); }
  };
  void configure(const std::string& schema);

  std::unique_ptr<sqlite3, Close> connection_;
  std::optional<ado::Error> functionFailure_;
  bool hasPartner_ = false;
};

/// What a statement may do with the transaction that its caller believes to be in: SQLite gives a
/// transaction up by itself after some failures (a full disk), and whatever comes next must not be
/// stored on its own.
class Transaction {
 public:
  explicit Transaction(Database& database) : database_(&database) {}

  void begin();
  void commit();
  void rollback();
  /// The truth. Whoever has read "no" here knows that the transaction is gone.
  bool isOpen() const;
  /// Throws Error when the transaction has been given up and nobody has been told yet.
  void requireNotLost(std::string_view subject) const;

 private:
  bool isLost() const { return begun_ && !database_->inTransaction(); }

  Database* database_;
  mutable bool begun_ = false;
};

}  // namespace korvantes::sqlite
