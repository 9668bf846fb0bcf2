#include "component/mdoKORVANTES.h"
#include "report/frmLiquidAgentes.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

namespace {

// The search dialog.
constexpr const char* kOrigenFilas = "SELECT (0),Age_ID,Age_NOM FROM Age";
constexpr const char* kCampoOrden = "Age_NOM";
constexpr long kAnchoCodigo = 1300, kAnchoNombre = 6000;

constexpr const char* kSelectAgente = "Select Age_ID,Age_NOM FROM Age where Age_Id=";

}  // namespace

void frmLiquidAgentes::avisaCodigoNoValido() {
  nIdAgente = 0;
  Text1(kNombre).Text = "";
  Tag = "e";
  screen::MsgBox("El código de agente no es válido", screen::style::Exclamation, sTituloForm);
  Text1(kCodigo).SetFocus();
}

void frmLiquidAgentes::msBuscarAgente(const std::int32_t& nCodigo) {
  if (nCodigo < 0) {
    const std::string sFila = oUtil->BuscaEnLista(kOrigenFilas, kCampoOrden, "Codigo", "Nombre",
                                                  "Buscar Agentes", kAnchoCodigo, kAnchoNombre, 0);
    if (sFila.size() > 2) {
      nIdAgente = screen::CLng(plindor::elementoDe(sFila, 1));
      Text1(kCodigo).Text = std::to_string(nIdAgente);
      Text1(kNombre).Text = plindor::elementoDe(sFila, 2);
    } else {
      Text1(kCodigo).Text = "";
      Text1(kNombre).Text = "";
    }
    return;
  }

  ado::Recordset rsAgente =
      mdoKORVANTES::Conexion().Execute(kSelectAgente + std::to_string(nCodigo));
  if (rsAgente.isEOF()) {
    nIdAgente = 0;
    Text1(kCodigo).Text = "";
    Text1(kNombre).Text = "";
  } else {
    nIdAgente = rsAgente.Collect("Age_id").asLong();
    Text1(kNombre).Text = screen::CStr(rsAgente.Collect("age_Nom"));
    rsAgente.Close();
  }
}

}  // namespace korvantes
