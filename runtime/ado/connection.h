#pragma once

#include <string_view>

#include "runtime/ado/error.h"
#include "runtime/ado/recordset.h"

namespace korvantes::ado {

/// An open database. Not safe for use from several threads.
///
/// Statements are T-SQL, in the subset that the module sends. A failure throws an Error with a kind
/// and a sentence for the user. Only the failed statement is undone: an open transaction stays open
/// with all earlier changes.
///
/// An engine can abort a whole transaction on its own (full disk, deadlock, lost connection). Every
/// later statement and CommitTrans then throws an Error of kind TransactionLost, so that nothing is
/// stored outside the transaction, until the caller calls RollbackTrans, which succeeds, or learns
/// from inTransaction that the transaction is gone.
///
/// If the database itself is gone (its file was deleted or replaced, the shared one is missing),
/// every write throws: no change is accepted that would be lost.
class Connection {
 public:
  virtual ~Connection() = default;

  /// Runs one statement. A SELECT returns an open recordset, any other statement a closed one.
  /// `rowsAffected`, if given, receives the number of rows changed; -1 for a SELECT.
  virtual Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) = 0;

  /// Opens a write transaction. Writers never interleave: the second one waits here, for a limited
  /// time. Throws Error of kind Busy on timeout, and Error if a transaction is already open.
  virtual void BeginTrans() = 0;
  /// Makes the changes durable. After an Error, roll the transaction back. If only the reply was
  /// lost, the changes are stored anyway.
  virtual void CommitTrans() = 0;
  /// Undoes all changes of the transaction. Throws Error if none is open, but not if it was lost.
  virtual void RollbackTrans() = 0;
  /// Returns whether a transaction is open. A lost one is not; once this has returned false, its
  /// loss is no longer reported.
  virtual bool inTransaction() const = 0;

  /// Runs a SELECT on one table. The first row of the result, if any, can be changed through the
  /// recordset's Update, which finds it by the table's key and throws Error of kind Gone if it has
  /// been deleted. Throws Error for a statement over several tables or a table without a key.
  virtual Recordset OpenForUpdate(std::string_view statement) = 0;
};

}  // namespace korvantes::ado
