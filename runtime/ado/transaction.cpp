#include "runtime/ado/transaction.h"

#include <exception>

namespace korvantes::ado {

namespace {

std::optional<Error> rolledBack(Connection& connection) noexcept {
  constexpr int kAttempts = 2;
  std::optional<Error> failure;
  // Check whether it is still open: a rollback can succeed even if the reply is lost.
  for (int attempt = 0; attempt < kAttempts && connection.inTransaction(); ++attempt) {
    try {
      connection.RollbackTrans();
      return std::nullopt;
    } catch (const Error& error) {
      failure = error;
    } catch (const std::exception& error) {
      failure = Error(0, error.what());
    }
  }
  return connection.inTransaction() ? failure : std::nullopt;
}

}  // namespace

Transaction::Transaction(Connection& connection) : connection_(connection) {
  const bool openBefore = connection.inTransaction();
  try {
    connection.BeginTrans();
  } catch (...) {
    if (!openBefore) rolledBack(connection);
    throw;
  }
}

void Transaction::commit() {
  connection_.CommitTrans();
  ended_ = true;
}

std::optional<Error> Transaction::rollBack() noexcept {
  ended_ = true;
  return rolledBack(connection_);
}

}  // namespace korvantes::ado
