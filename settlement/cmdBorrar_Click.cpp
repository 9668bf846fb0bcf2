#include <stdexcept>

#include "component/mdoKORVANTES.h"
#include "runtime/ado/transaction.h"
#include "runtime/screen/desktop.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr const char* kDeCav = " WHERE Cav_IdLca = ";
constexpr const char* kDeLcd = " WHERE Lcd_IdLca=";
constexpr const char* kDeLca = " WHERE Lca_Id=";

constexpr int kDecimales = 2;

/// Raised when the database service answers False; its words are not shown.
constexpr long kErrorPropio = 999;
constexpr const char* kDescripcionErrorPropio = "Error definido por la aplicación o el objeto";

void exige(bool hecho) {
  if (!hecho) throw ado::Error(kErrorPropio, kDescripcionErrorPropio);
}

bool pregunta(const char* texto, int icono, const std::string& titulo) {
  return screen::MsgBox(texto, icono | screen::style::YesNo | screen::style::DefaultSecond,
                        titulo) == screen::Answer::Yes;
}

}  // namespace

void frmNewLiquidAgentes::cmdBorrar_Click() {
  if (nLiqui <= 0) return;
  if (!pregunta("Desea eliminar la liquidación actual", screen::style::Exclamation, sTituloForm) ||
      !pregunta("Confirma que desea eliminar la liquidación actual", screen::style::Critical,
                sTituloForm))
    return;

  const std::shared_ptr<plindor::BaseDatos> oDb = mdoKORVANTES::MyBd();
  std::optional<ado::Transaction> transaccion;
  std::optional<std::string> sFallo;
  try {
    transaccion.emplace(oDb->Conexion());
    borraLiquidacion(*oDb);
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

void frmNewLiquidAgentes::borraLiquidacion(plindor::BaseDatos& oDb) {
  const std::string sLiqui = std::to_string(nLiqui);
  long long nFilas = 0;
  std::string sError;

  oDb.Tabla = "Cav";
  oDb.LimpiaSentencia(0);
  oDb.Campos.AgregaCampo("Cav_IdLca", plindor::ListaCampos::Literal, "Null", kDecimales);
  oDb.Condicion = kDeCav + sLiqui;
  exige(oDb.ActualizaFilas(sError));
  nFilas += oDb.FilasAfectadas();

  oDb.Tabla = "Lcd";
  oDb.LimpiaSentencia(0);
  oDb.Condicion = kDeLcd + sLiqui;
  exige(oDb.BorraFilas(sError));
  nFilas += oDb.FilasAfectadas();

  oDb.Tabla = "Lca";
  oDb.LimpiaSentencia(0);
  oDb.Condicion = kDeLca + sLiqui;
  exige(oDb.BorraFilas(sError));
  nFilas += oDb.FilasAfectadas();

  // If another user has replaced it, its delivery notes are still settled, under another number.
  if (nFilas == 0)
    throw std::runtime_error("La liquidación " + sLiqui +
                             " ya no existe: otro usuario la ha cambiado o eliminado.");
}

}  // namespace korvantes
