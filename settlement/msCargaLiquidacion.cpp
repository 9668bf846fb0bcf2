#include "component/mdoKORVANTES.h"
#include "data/listed_notes.h"
#include "data/money_rule.h"
#include "data/stored_settlement.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

int marca(const ado::Variant& valor) {
  return !valor.isNull() && valor.asBoolean() ? 1 : 0;
}

}  // namespace

bool frmNewLiquidAgentes::msCargaLiquidacion() {
  cmdImprime.Visible = false;
  cmdBorrar.Visible = false;
  if (nLiqui == 0) return false;

  ado::Connection& conexion = mdoKORVANTES::Conexion();
  const ado::Recordset rsLca = data::storedSettlement(conexion, nLiqui);
  if (rsLca.RecordCount() < 1) {
    avisa(data::whyNotFound(conexion, nLiqui), screen::style::Exclamation, sTituloForm);
    return false;
  }
  cargaCabecera(rsLca);
  cargaDetalle(conexion);

  fraAgente.Enabled = false;
  cmdGrabar.Enabled = true;
  cmdSelTodo.Enabled = true;
  cmdImprime.Visible = true;
  cmdBorrar.Visible = true;
  cmdGrabar.Width = cmdBorrar.Width();
  bCargada = true;
  return true;
}

void frmNewLiquidAgentes::cargaCabecera(const ado::Recordset& rsLca) {
  // A Null shows as an empty text.
  const auto carga = [&](const char* columna, int caja) {
    Text1(caja).Text = screen::CStr(rsLca.Collect(columna));
  };
  carga("lca_idag", kCodigo);
  carga("age_Nom", kNombre);
  carga("lca_fecha", kFecha);
  Check1.Value = marca(rsLca.Collect("lca_Cob"));
  Check2.Value = marca(rsLca.Collect("lca_nCob"));
  carga("lca_hfecha", kHastaFecha);
  carga("lca_obs", kObservaciones);
  carga("lca_base", kBase);
  carga("lca_poriva", kPorIva);
  carga("lca_iva", kIva);
  carga("lca_porretencion", kPorRetencion);
  carga("lca_retencion", kRetencion);
  carga("lca_total", kTotal);

  nAgenteLista = rsLca.Collect("lca_idag").asLong();
  // Kept for the next save unless a lookup of rates replaces it.
  const ado::Variant& tiva = rsLca.Collect("Lca_IdTiva");
  nIdTiva = tiva.isNull() ? 0 : tiva.asLong();
}

void frmNewLiquidAgentes::cargaDetalle(ado::Connection& conexion) {
  rsAlb = conexion.Execute(data::settledStatement(nLiqui));
  for (; !rsAlb.isEOF(); rsAlb.MoveNext()) {
    const data::ListedNote albaran = data::listedNote(conexion, rsAlb);
    const double dPorcentaje = data::commissionPercent(albaran.commission, albaran.amount);
    const std::string sSerie = screen::CStr(rsAlb.Collect("Fav_Serie"));

    screen::ListView::ListItem& fila = ListView1.Add((sSerie.empty() ? "" : sSerie + "/") +
                                                     screen::CStr(rsAlb.Collect("Fav_numero")));
    fila.SubItems = {screen::Format(rsAlb.Collect("fav_fecha"), "dd/mm/yyyy"),
                     screen::CStr(rsAlb.Collect("Cav_NFiscal")),
                     screen::CStr(rsAlb.Collect("Albaran")),
                     screen::Format(albaran.amount, "0.00"),
                     screen::Format(dPorcentaje, "##0.00"),
                     screen::Format(albaran.commission, "0.00")};
    fila.Tag = std::to_string(albaran.id);
    fila.Checked = true;
  }
}

}  // namespace korvantes
