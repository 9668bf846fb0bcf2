#include <memory>

#include "component/mdoKORVANTES.h"
#include "data/settlement_writing.h"
#include "runtime/ado/transaction.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

void frmNewLiquidAgentes::cmdBorrar_Click() {
  if (nLiqui <= 0) return;
  if (!pregunta("Desea eliminar la liquidación actual") ||
      !pregunta("Confirma que desea eliminar la liquidación actual", screen::style::Critical))
    return;

  const std::shared_ptr<plindor::BaseDatos> oDb = mdoKORVANTES::MyBd();
  std::optional<ado::Transaction> transaccion;
  std::optional<std::string> sFallo;
  try {
    transaccion.emplace(oDb->Conexion());
    data::deleteSettlement(*oDb, nLiqui);
    transaccion->commit();
  } catch (const std::exception& fallo) {
    sFallo = fallo.what();
    if (transaccion) *sFallo += mdoKORVANTES::deshaz(*transaccion);
  }

  if (sFallo)
    screen::MsgBox("Error eliminando liquidación: \r\n" + *sFallo, screen::style::Critical,
                   sTituloForm);
  else
    screen::MsgBox("Liquidación eliminada ", screen::style::Information, sTituloForm);
  Unload();
}

}  // namespace korvantes
