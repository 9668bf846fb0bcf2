#include "component/mdoKORVANTES.h"
#include "outside/office/objects.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr const char* kSelectInforme =
    "select age_id,age_nom,age_nif,lca.* from lca inner join age on lca_idag=age_id ";
constexpr const char* kWhereInforme = " Where lca_id = ";
constexpr int kInformeLiquidacion = 11;

}  // namespace

void frmNewLiquidAgentes::cmdImprime_Click() {
  muestraInforme(nLiqui);
}

void frmNewLiquidAgentes::muestraInforme(std::int32_t nLiquidacion) {
  const std::string sSql =
      std::string(kSelectInforme) + kWhereInforme + std::to_string(nLiquidacion);
  const std::unique_ptr<office::Object> oPrint = office::CreateObject("marzenes.MZPrint");
  oPrint->set("MyBd", mdoKORVANTES::MyBd());
  oPrint->call("ShowReport",
               {ado::Variant(kInformeLiquidacion), ado::Variant(sSql), ado::Variant(0)});
}

}  // namespace korvantes
