#pragma once

#include <optional>

#include "runtime/ado/connection.h"

namespace korvantes::ado {

/// A transaction for as long as the object lives: opened by the constructor, rolled back by the
/// destructor unless commit or rollBack was called.
class Transaction {
 public:
  /// Throws what BeginTrans throws, also if a transaction is open already; that one stays as it
  /// is. Otherwise nothing is left open, even if only the answer was lost.
  explicit Transaction(Connection& connection);
  ~Transaction() {
    if (!ended_) rollBack();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// Throws what CommitTrans throws; the transaction is then still to be rolled back. If only the
  /// answer was lost, the changes are stored all the same.
  void commit();

  /// Undoes at once what is not committed, for callers that tell the user the outcome. Returns the
  /// failure if the changes could not be undone; the transaction is then still open.
  std::optional<Error> rollBack() noexcept;

 private:
  Connection& connection_;
  bool ended_ = false;
};

}  // namespace korvantes::ado
