#pragma once

#include <string_view>

#include "runtime/ado/error.h"
#include "runtime/ado/recordset.h"

namespace korvantes::ado {

/// An open database. Not safe for use from several threads.
///
/// Statements are T-SQL texts of the subset that the module sends. A failure is an Error with a
/// kind and a sentence for the user. It undoes the failed statement alone: an open transaction
/// stays open with everything done before.
///
/// An engine can give up a whole transaction by itself (a full disk, a deadlock, a lost
/// connection). From then on every statement and CommitTrans throw an Error of kind
/// TransactionLost, so that nothing is stored on its own, until the caller ends the transaction by
/// RollbackTrans, which then succeeds, or learns from inTransaction that it is gone.
///
/// If the database itself is gone (its file was deleted or replaced, the shared one is missing),
/// whatever writes throws as well: no change is accepted that would be lost.
class Connection {
 public:
  virtual ~Connection() = default;

  /// Runs one statement. A SELECT returns an open recordset, any other statement a closed one.
  /// `rowsAffected`, if given, receives the number of rows changed; -1 for a SELECT.
  virtual Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) = 0;

  /// Opens a transaction, as a writer: two writers never meet in the middle of their changes,
  /// because the second one waits here, for a limited time. Throws Error of kind Busy once that
  /// time is over, and an Error if a transaction is open already.
  virtual void BeginTrans() = 0;
  /// Makes the changes durable. After an Error the transaction is to be rolled back. If only the
  /// answer was lost, the changes are stored all the same.
  virtual void CommitTrans() = 0;
  /// Undoes all changes of the transaction. Throws Error if none is open, but not if the open one
  /// was lost.
  virtual void RollbackTrans() = 0;
  /// Whether a transaction is open. A lost one is not, and is no longer reported once this has
  /// returned false.
  virtual bool inTransaction() const = 0;

  /// Runs a SELECT on one table. The first row of the result, if any, can be changed through the
  /// recordset's Update, which finds it by the table's key and throws Error of kind Gone if it was
  /// deleted meanwhile. Throws Error for a statement over several tables or a table without a key.
  virtual Recordset OpenForUpdate(std::string_view statement) = 0;
};

}  // namespace korvantes::ado
