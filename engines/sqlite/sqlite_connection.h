// engines/sqlite: the embedded engine. One file for the company, a second one beside it (the same
// path with ".vespara" behind it) for what several applications share, attached as Vespara.
//
// Every statement passes the compiler; what it declared is kept in the file itself (table
// `korvantes_schema`), so that a file opened later brings its own catalogue of types.
#pragma once

#include <memory>
#include <string>

#include "runtime/ado/connection.h"

namespace korvantes::sqlite {

/// How a database file is opened.
struct OpenOptions {
  /// Make the files when they are missing. Else a missing file is an Error; without its partner a
  /// file opens, and only the statements that name the shared tables are refused.
  bool create = false;
  int busyMilliseconds = 5000;  ///< how long to wait for another user's write
};

/// A connection to a database file. WAL, full durability, immediate transactions; files are made
/// with mode 0600, and a link in the place of a file is refused. Errors carry a Spanish sentence
/// with SQLite's words and its extended result code; those of an arithmetic carry the server's.
///
/// When SQLite gives a transaction up by itself (a full disk), further statements are refused until
/// the caller knows, by RollbackTrans, by inTransaction or by a new BeginTrans: none of them is
/// stored on its own.
class SqliteConnection : public ado::Connection {
 public:
  explicit SqliteConnection(const std::string& path, OpenOptions options = {});
  ~SqliteConnection() override;
  SqliteConnection(const SqliteConnection&) = delete;
  SqliteConnection& operator=(const SqliteConnection&) = delete;

  ado::Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) override;
  void BeginTrans() override;
  void CommitTrans() override;
  void RollbackTrans() override;
  bool inTransaction() const override;
  ado::Recordset OpenForUpdate(std::string_view statement) override;

  /// True when the file or its partner holds at least one table, of ours or of somebody else's.
  bool hasTables() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace korvantes::sqlite
