// engines/sqlite: the embedded engine. One file for the company; a second one beside it (the same
// path followed by ".vespara"), attached as Vespara, for what several applications share.
//
// Every statement passes through the compiler. Declarations are kept in the file itself (table
// `korvantes_schema`), so that every file has its own catalogue of types.
#pragma once

#include <memory>
#include <string>

#include "runtime/ado/connection.h"

namespace korvantes::sqlite {

/// How a database file is opened.
struct OpenOptions {
  /// Accept files that are missing or without tables, and create those that are missing. Otherwise
  /// the company's file must hold tables; without the shared one it opens, and only statements on
  /// the shared tables are refused.
  bool create = false;
  int busyMilliseconds = 5000;  ///< how long to wait for another user's write
};

/// A connection to a database file: WAL, full durability, immediate transactions. Files are created
/// with mode 0600. A link in the place of a file is refused, and so is a database of another
/// program, before a byte of it changes or a file appears beside it. An Error's number is SQLite's
/// extended result code; that of a wrong statement or a failed arithmetic is the server's.
///
/// Before every write it checks that both files are still the ones that were opened (kind
/// FileReplaced). A shared file that appears later is attached when a statement needs it and no
/// transaction is open.
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

  /// Whether a table is declared, by any connection. `database` is empty for the company's own
  /// tables and "Vespara" for the shared ones.
  bool hasTable(std::string_view database, std::string_view table);

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

/// Whether there is a database of ours under this path: false if the file is missing, empty, or a
/// database in which nothing was ever declared. Changes nothing. Throws Error for anything else.
bool holdsTables(const std::string& path);

}  // namespace korvantes::sqlite
