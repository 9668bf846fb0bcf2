#include "runtime/ado/transaction.h"

#include <exception>

namespace korvantes::ado {

Transaction::Transaction(Connection& connection)
    : connection_(connection), foreign_(connection.inTransaction()) {}

void Transaction::begin() {
  connection_.BeginTrans();
}

void Transaction::commit() {
  connection_.CommitTrans();
}

std::string Transaction::undo() {
  if (foreign_) return "";
  constexpr int kAttempts = 2;
  std::string why;
  // What counts is whether it is still open: a rollback can be done and its answer lost.
  for (int attempt = 0; attempt < kAttempts && connection_.inTransaction(); ++attempt) {
    try {
      connection_.RollbackTrans();
      return "";
    } catch (const std::exception& failure) {
      why = failure.what();
    }
  }
  if (!connection_.inTransaction()) return "";
  return "\r\nTampoco se han podido deshacer los cambios: " + why;
}

}  // namespace korvantes::ado
