#include "settlement/transaccion.h"

namespace korvantes {

Transaccion::Transaccion(ado::Connection& conexion)
    : conexion_(conexion), ajena_(conexion.inTransaction()) {}

void Transaccion::empieza() {
  conexion_.BeginTrans();
}

void Transaccion::confirma() {
  conexion_.CommitTrans();
}

std::string Transaccion::deshace() {
  if (ajena_) return "";
  constexpr int kIntentos = 2;
  std::string porQue;
  // What counts is whether it is still open: a rollback can be done and its answer lost.
  for (int intento = 0; intento < kIntentos && conexion_.inTransaction(); ++intento) {
    try {
      conexion_.RollbackTrans();
      return "";
    } catch (const std::exception& fallo) {
      porQue = fallo.what();
    }
  }
  if (!conexion_.inTransaction()) return "";
  return "\r\nTampoco se han podido deshacer los cambios: " + porQue;
}

}  // namespace korvantes
