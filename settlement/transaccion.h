#pragma once

#include <string>

#include "outside/ado/connection.h"

namespace korvantes {

/// The one transaction of a save or a deletion.
class Transaccion {
 public:
  explicit Transaccion(ado::Connection& conexion);

  /// Throws what BeginTrans throws, also when somebody else has a transaction open.
  void empieza();
  /// Throws what CommitTrans throws; if only its answer was lost, the changes are stored all the
  /// same.
  void confirma();
  /// Undoes what is not confirmed. Gives what the user must know when that fails, a line break in
  /// front of it, else the empty text. A transaction that was open before stays as it is: it is not
  /// ours to undo.
  std::string deshace();

 private:
  ado::Connection& conexion_;
  bool ajena_;
};

}  // namespace korvantes
