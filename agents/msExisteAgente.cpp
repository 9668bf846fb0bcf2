#include "agents/frmAgentes.h"
#include "runtime/screen/conversions.h"

namespace korvantes {

namespace {

constexpr const char* kCriterio = "AGE_ID=";

}  // namespace

bool frmAgentes::msExisteAgente(const ado::Variant& nId) {
  if (rsOper.RecordCount() < 1) return false;
  bool bExiste = false;
  ado::Bookmark marca = rsOper.Bookmark();
  ado::Recordset copia = rsOper.Clone();
  copia.MoveFirst();
  copia.Find(kCriterio + screen::CStr(nId), 0, ado::Recordset::Direction::Forward);
  if (!copia.isBOF() && !copia.isEOF() && copia.Bookmark()) {
    marca = copia.Bookmark();
    bExiste = true;
  }
  copia.Close();
  rsOper.Bookmark(marca);
  return bExiste;
}

}  // namespace korvantes
