#pragma once

#include <string_view>

#include "runtime/ado/error.h"
#include "runtime/ado/recordset.h"

namespace korvantes::ado {

/// An open database. Not safe for use from several threads.
///
/// Statements are T-SQL texts of the subset that the module sends. A failure is an Error with the
/// engine's words; it undoes the failed statement and leaves an open transaction open.
class Connection {
 public:
  virtual ~Connection() = default;

  /// Runs one statement. A SELECT gives an open recordset, any other statement a closed one; for
  /// those `rowsAffected`, if given, takes the number of rows changed (-1 for a SELECT).
  virtual Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) = 0;

  /// Opens a transaction. Throws Error when one is open already or the database is locked.
  virtual void BeginTrans() = 0;
  /// Makes the changes durable. On an Error the transaction is still open and can be rolled back.
  virtual void CommitTrans() = 0;
  /// Undoes the changes. Throws Error when no transaction is open.
  virtual void RollbackTrans() = 0;
  virtual bool inTransaction() const = 0;

  /// Runs a SELECT on one table whose first row, if any, can be changed through the recordset's
  /// Update; the row is found again by the table's key. Throws Error for a statement that does not
  /// name one table or a table without a key.
  virtual Recordset OpenForUpdate(std::string_view statement) = 0;
};

}  // namespace korvantes::ado
