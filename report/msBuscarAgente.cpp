#include "component/mdoKORVANTES.h"
#include "report/frmLiquidAgentes.h"
#include "runtime/screen/conversions.h"

namespace korvantes {

namespace {

constexpr std::int32_t kPedirAgente = -1;

constexpr const char* kSelectAgente = "Select Age_ID,Age_NOM FROM Age where Age_Id=";

}  // namespace

void frmLiquidAgentes::buscaPorNombre() {
  msBuscarAgente(kPedirAgente);
}

void frmLiquidAgentes::msBuscarAgente(const std::int32_t& nCodigo) {
  if (nCodigo < 0) {
    if (const std::optional<Elegido> elegido =
            eligeAgente({"SELECT (0),Age_ID,Age_NOM FROM Age", "Age_NOM", "Codigo", "Nombre",
                         "Buscar Agentes", 1300, 6000})) {
      nIdAgente = elegido->codigo;
      Text1(kCodigo).Text = std::to_string(nIdAgente);
      Text1(kNombre).Text = elegido->nombre;
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
