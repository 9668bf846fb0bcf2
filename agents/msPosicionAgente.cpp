#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

using namespace agents;

namespace {

constexpr const char* kCriterio = "AGE_ID = ";

}  // namespace

void frmAgentes::msPosicionAgente(std::int32_t nId, bool bUltimo) {
  if (rsOper.RecordCount() < 1) return;
  if (bUltimo) return rsOper.MoveLast();
  rsOper.MoveFirst();
  rsOper.Find(kCriterio + std::to_string(nId), 0, ado::Recordset::Direction::Forward);
  if (!rsOper.isEOF()) return;
  rsOper.MoveLast();
  screen::MsgBox(
      "El agente " + std::to_string(nId) + " ya no existe: otro usuario lo ha eliminado.",
      screen::style::Exclamation, kTitulo);
}

}  // namespace korvantes
