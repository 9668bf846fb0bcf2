#include <charconv>

#include "component/mdoKORVANTES.h"
#include "runtime/ado/characters.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

// The search dialog.
constexpr const char* kOrigenFilas = "Select (0), Age_ID,Age_Nom FROM Age";
constexpr const char* kCampoOrden = "Age_Nom";
constexpr long kAnchoCodigo = 600, kAnchoNombre = 6000;

constexpr const char* kSelectAgente = "SELECT Age_ID,Age_NOM,Age_Reg FROM Age WHERE ";
constexpr const char* kWhereAgente = " Age_id = ";

}  // namespace

std::optional<std::int32_t> frmNewLiquidAgentes::codigoDe(std::string_view texto) {
  std::int32_t codigo = 0;
  const char* end = texto.data() + texto.size();
  if (!ado::allDigits(texto)) return {};
  auto [read, error] = std::from_chars(texto.data(), end, codigo);
  if (error != std::errc{} || read != end) return {};
  return codigo;
}

void frmNewLiquidAgentes::avisaCodigoNoValido() {
  nIdAgente = 0;
  nRegimen = 0;
  Text1(1).Text = "";
  Tag = "e";
  screen::MsgBox("El código de agente no es válido", screen::style::Exclamation);
  Text1(0).SetFocus();
}

void frmNewLiquidAgentes::msBuscarAgente(std::int32_t& nAgente) {
  if (nAgente == 0) {
    Tag = "e";
    const std::string fila =
        oUtil->BuscaEnLista(kOrigenFilas, kCampoOrden, "Codigo", "Agente",
                            "Buscar agente por nombre", kAnchoCodigo, kAnchoNombre, 0);
    if (fila.size() > 2) {
      nAgente = screen::CLng(plindor::elementoDe(fila, 1));
      nIdAgente = nAgente;
    } else {
      nAgente = 0;
      nRegimen = 0;
    }
  }
  if (nAgente == 0) return;

  ado::Recordset rsAgente = mdoKORVANTES::Conexion().Execute(
      std::string(kSelectAgente) + kWhereAgente + std::to_string(nAgente));
  if (rsAgente.isEOF()) {
    nIdAgente = 0;
    Text1(0).Text = "";
    Text1(1).Text = "";
    nRegimen = 0;
  } else {
    nIdAgente = rsAgente.Collect("Age_id").asLong();
    Text1(0).Text = std::to_string(nIdAgente);
    Text1(1).Text = screen::CStr(rsAgente.Collect("age_Nom"));
    const ado::Variant& regimen = rsAgente.Collect("Age_Reg");
    nRegimen = regimen.isNull() ? 1 : regimen.asLong();
  }
  rsAgente.Close();
}

}  // namespace korvantes
