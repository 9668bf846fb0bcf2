#include "component/mdoKORVANTES.h"
#include "data/money_rule_sql.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr const char* kSelectCabecera =
    "SELECT lca.*,Age_Nom FROM Lca INNER JOIN Age ON Age_Id = Lca_Idag WHERE Lca_ID = ";

constexpr const char* kSelectDetalle =
    "SELECT Cav_Id,Cav_NFiscal,Fav_Serie,Fav_Numero,Fav_Fecha, (Cav_Serie + '/' + cast(Cav_Numero "
    "as varchar(5))) as Albaran,";
constexpr const char* kImporte = "FROM laV where laV_Idcav= cav_id) as importe ";
constexpr const char* kFrom = "FROM lcd ";
constexpr const char* kJoinCav = "INNER JOIN Cav ON Cav_Id = Lcd_IdCav ";
constexpr const char* kJoinFav = "INNER JOIN Fav ON Fav_Id = Cav_IdFactura ";
constexpr const char* kJoinCli = "INNER JOIN Cli ON Cli_Id = Fav_IdCli ";
constexpr const char* kWhereDetalle = "WHERE Lcd_IdLca = ";

struct Campo {
  const char* columna;
  int caja;
};
constexpr Campo kAgente[] = {{"lca_idag", 0}, {"age_Nom", 1}};
constexpr Campo kImportes[] = {{"lca_obs", 7},  {"lca_base", 10},         {"lca_poriva", 3},
                               {"lca_iva", 9},  {"lca_porretencion", 11}, {"lca_retencion", 12},
                               {"lca_total", 8}};

int marca(const ado::Variant& valor) {
  return !valor.isNull() && valor.asBoolean() ? 1 : 0;
}

}  // namespace

bool frmNewLiquidAgentes::msCargaLiquidacion() {
  cmdImprime.Visible = false;
  cmdBorrar.Visible = false;
  if (nLiqui == 0) return false;

  ado::Connection& conexion = mdoKORVANTES::Conexion();
  const std::string sLiqui = std::to_string(nLiqui);
  const ado::Recordset rsLca = conexion.Execute(kSelectCabecera + sLiqui);
  if (rsLca.RecordCount() < 1) return false;

  // A Null shows as an empty text.
  const auto muestra = [&](const Campo& campo) {
    Text1(campo.caja).Text = screen::CStr(rsLca.Collect(campo.columna));
  };
  for (const Campo& campo : kAgente) muestra(campo);
  muestra({"lca_fecha", 2});
  Check1.Value = marca(rsLca.Collect("lca_Cob"));
  Check2.Value = marca(rsLca.Collect("lca_nCob"));
  muestra({"lca_hfecha", 4});
  for (const Campo& campo : kImportes) muestra(campo);

  nAgenteLista = rsLca.Collect("lca_idag").asLong();
  // Kept for the next save unless a lookup of rates replaces it.
  const ado::Variant& tiva = rsLca.Collect("Lca_IdTiva");
  nIdTiva = tiva.isNull() ? 0 : tiva.asLong();

  cargaDetalle(conexion, sLiqui);

  fraAgente.Enabled = false;
  cmdGrabar.Enabled = true;
  cmdSelTodo.Enabled = true;
  cmdImprime.Visible = true;
  cmdBorrar.Visible = true;
  cmdGrabar.Width = cmdBorrar.Width();
  bCargada = true;
  return true;
}

void frmNewLiquidAgentes::cargaDetalle(ado::Connection& conexion, const std::string& sLiqui) {
  rsAlb =
      conexion.Execute(std::string(kSelectDetalle) + std::string(data::sql::kNoteNet) + kImporte +
                       kFrom + kJoinCav + kJoinFav + kJoinCli + kWhereDetalle + sLiqui);
  for (; !rsAlb.isEOF(); rsAlb.MoveNext()) {
    const std::int32_t nIdCav = rsAlb.Collect("Cav_Id").asLong();
    const double dComision = mdoKORVANTES::oComponente()->msComisionAgente(3, nIdCav, 0);
    const ado::Variant& importe = rsAlb.Collect("Importe");
    const double dNeto = oUtil->Redondea(importe.isNull() ? 0.0 : importe.asDouble(), 2);
    const double dPorcentaje =
        dNeto == 0 ? 0.0 : oUtil->Redondea(oUtil->Redondea(dComision * 100, 2) / dNeto, 2);
    const std::string sSerie = screen::CStr(rsAlb.Collect("Fav_Serie"));

    screen::ListView::ListItem& fila = ListView1.Add((sSerie.empty() ? "" : sSerie + "/") +
                                                     screen::CStr(rsAlb.Collect("Fav_numero")));
    fila.SubItems = {screen::Format(rsAlb.Collect("fav_fecha"), "dd/mm/yyyy"),
                     screen::CStr(rsAlb.Collect("Cav_NFiscal")),
                     screen::CStr(rsAlb.Collect("Albaran")),
                     screen::Format(dNeto, "0.00"),
                     screen::Format(dPorcentaje, "##0.00"),
                     screen::Format(oUtil->Redondea(dComision, 2), "0.00")};
    fila.Tag = std::to_string(nIdCav);
    fila.Checked = true;
  }
}

}  // namespace korvantes
