#include "component/mdoKORVANTES.h"
#include "data/rates_in_force.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

std::string textoDe(const data::OptionalDecimal& tasa) {
  return screen::Format(tasa ? ado::Variant(*tasa) : ado::Variant(), "0.00");
}

}  // namespace

void frmNewLiquidAgentes::msCargaIva() {
  const std::string sFecha = Text1(kFecha).Text();
  nIdTiva = 0;
  Text1(kPorIva).Text = "";
  Text1(kPorRetencion).Text = "";
  try {
    ado::Connection& conexion = mdoKORVANTES::Conexion();
    // Not read yet for the agent of a stored settlement.
    if (nRegimen == kRegimenSinLeer || (bCargada && nRegimen == 0))
      nRegimen = data::regimeOf(conexion, codigoDe(Text1(kCodigo).Text()).value_or(0));

    const std::optional<data::Rates> tasas =
        data::ratesInForce(conexion, nRegimen, screen::IsDate(sFecha) ? sFecha : "");
    if (tasas) {
      Text1(kPorIva).Text = textoDe(tasas->vat);
      Text1(kPorRetencion).Text = textoDe(tasas->withholding);
      nIdTiva = tasas->row;
    } else {
      nIdTiva = data::kNoRateRow;
      Text1(kPorIva).Text = "0";
      Text1(kPorRetencion).Text = "0";
    }
    sFalloTasas.clear();
  } catch (const std::exception& fallo) {
    sFalloTasas = fallo.what();
    throw;
  }
}

}  // namespace korvantes
