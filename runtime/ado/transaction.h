#pragma once

#include <string>

#include "runtime/ado/connection.h"

namespace korvantes::ado {

/// The one transaction of a save or a deletion, and what undoes it when that fails.
class Transaction {
 public:
  explicit Transaction(Connection& connection);

  /// Throws what BeginTrans throws, also when somebody else has a transaction open.
  void begin();
  /// Throws what CommitTrans throws; if only its answer was lost, the changes are stored all the
  /// same.
  void commit();
  /// Undoes what is not committed. Gives what the user must know when that fails, a line break in
  /// front of it, else the empty text. A transaction that was open before stays as it is: it is not
  /// ours to undo.
  std::string undo();

 private:
  Connection& connection_;
  bool foreign_;
};

}  // namespace korvantes::ado
