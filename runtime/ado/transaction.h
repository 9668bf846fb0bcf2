#pragma once

#include <optional>

#include "runtime/ado/connection.h"

namespace korvantes::ado {

/// The constructor opens a transaction; the destructor rolls it back unless commit or rollBack was
/// called.
class Transaction {
 public:
  /// Throws what BeginTrans throws. A transaction that was already open is then unaffected;
  /// otherwise none is left open, even if only the reply was lost.
  explicit Transaction(Connection& connection);
  ~Transaction() {
    if (!ended_) rollBack();
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;

  /// Throws what CommitTrans throws; the transaction must then still be rolled back. If only the
  /// reply was lost, the changes are stored anyway.
  void commit();

  /// Rolls back now, for callers that report the outcome. Returns the error if the rollback failed;
  /// the transaction is then still open.
  std::optional<Error> rollBack() noexcept;

 private:
  Connection& connection_;
  bool ended_ = false;
};

}  // namespace korvantes::ado
