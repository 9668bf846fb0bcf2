#include "component/mdoKORVANTES.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr const char* kSelectTiva = "Select Top 1 * from Vespara.dbo.Tivas WHERE Tiva_reg = ";
constexpr const char* kArticulo = " AND Tiva_Art = 1 ";
constexpr const char* kHastaFecha = " AND Tiva_Fecha <= '";
constexpr const char* kFinFecha = "'";
constexpr const char* kOrden = " ORDER BY Tiva_Fecha Desc";

constexpr const char* kSelectRegimen = "SELECT Age_Reg FROM Age WHERE Age_id = ";

}  // namespace

void frmNewLiquidAgentes::msCargaIva() {
  const std::string sFecha = Text1(2).Text();
  const bool bFecha = screen::IsDate(sFecha);

  // No lookup has told the regime of a stored settlement's agent.
  if (bCargada && nRegimen == 0) msCargaRegimen();

  std::string sSql = kSelectTiva + std::to_string(nRegimen) + kArticulo;
  // A text that is a date has no quotes in it.
  if (bFecha) sSql += kHastaFecha + sFecha + kFinFecha;
  sSql += kOrden;

  ado::Recordset rsTiva = mdoKORVANTES::Conexion().Execute(sSql);
  if (rsTiva.RecordCount() < 1) {
    nIdTiva = 1;
    Text1(3).Text = "0";
    Text1(11).Text = "0";
  } else {
    Text1(3).Text = screen::Format(rsTiva.Collect("Tiva_Iva"), "0.00");
    Text1(11).Text = screen::Format(rsTiva.Collect("Tiva_Ret"), "0.00");
    nIdTiva = rsTiva.Collect("Tiva_Id").asLong();
  }
}

void frmNewLiquidAgentes::msCargaRegimen() {
  const std::optional<std::int32_t> nAgente = codigoDe(Text1(0).Text());
  if (!nAgente) return;
  ado::Recordset rsAgente =
      mdoKORVANTES::Conexion().Execute(kSelectRegimen + std::to_string(*nAgente));
  if (rsAgente.isEOF()) return;
  const ado::Variant& regimen = rsAgente.Collect("Age_Reg");
  nRegimen = regimen.isNull() ? 1 : regimen.asLong();
}

}  // namespace korvantes
