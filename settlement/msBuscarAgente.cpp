#include "component/mdoKORVANTES.h"
#include "data/rates_in_force.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr const char* kSelectAgente = "SELECT Age_ID,Age_NOM,Age_Reg FROM Age WHERE ";
constexpr const char* kWhereAgente = " Age_id = ";

}  // namespace

void frmNewLiquidAgentes::buscaPorNombre() {
  std::int32_t nAgente = 0;
  msBuscarAgente(nAgente);
}

void frmNewLiquidAgentes::olvidaAgente() {
  SearchForm::olvidaAgente();
  nRegimen = 0;
}

void frmNewLiquidAgentes::msBuscarAgente(std::int32_t& nAgente) {
  if (nAgente == 0) {
    Tag = "e";
    if (const std::optional<Elegido> elegido =
            eligeAgente({"Select (0), Age_ID,Age_Nom FROM Age", "Age_Nom", "Codigo", "Agente",
                         "Buscar agente por nombre", 600, 6000})) {
      nAgente = elegido->codigo;
      nIdAgente = nAgente;
    } else {
      nAgente = 0;
      nRegimen = 0;
    }
  }
  if (nAgente == 0) return;

  // If the lookup fails, nothing of the previous agent may remain.
  olvidaAgente();
  nRegimen = kRegimenSinLeer;
  ado::Recordset rsAgente = mdoKORVANTES::Conexion().Execute(
      std::string(kSelectAgente) + kWhereAgente + std::to_string(nAgente));
  if (rsAgente.isEOF()) {
    Text1(kCodigo).Text = "";
    nRegimen = 0;
  } else {
    nIdAgente = rsAgente.Collect("Age_id").asLong();
    Text1(kCodigo).Text = std::to_string(nIdAgente);
    Text1(kNombre).Text = screen::CStr(rsAgente.Collect("age_Nom"));
    nRegimen = data::regimeFrom(rsAgente.Collect("Age_Reg"));
  }
  rsAgente.Close();
}

}  // namespace korvantes
