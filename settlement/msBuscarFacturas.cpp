#include "component/mdoKORVANTES.h"
#include "data/money_rule_sql.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr const char* kHastaFecha = " AND Fav_Fecha <= '";
constexpr const char* kFinFecha = "'";

// Conditions on the receipts of the invoice: both filters, collected, pending.
constexpr const char* kAmbas =
    " AND Fav_Id  in (SELECT Rec_idfac FROM REc where Rec_IdFac = Fav_Id and  Rec_Sit <= 5 AND "
    "Rec_Sit <> 8)";
constexpr const char* kFacturaEn = " AND Fav_Id IN ";
constexpr const char* kRecibos =
    "(SELECT Rec_IdFac  FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit <> 8 GROUP BY Rec_IdFac ";
constexpr const char* kCobradas =
    "HAVING COUNT(Rec_Id)= (SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id AND "
    "Rec_Sit=5))";
constexpr const char* kPendientes =
    "HAVING COUNT(Rec_Id)= (SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit "
    "IN(1,2,3,4)))";

constexpr const char* kSelect =
    "SELECT Cav_Id,Cav_NFiscal,Fav_Serie,Fav_Numero,Fav_Fecha, (Cav_Serie + '/' + cast(Cav_Numero "
    "as varchar(5))) as Albaran, ";
constexpr const char* kImporte = "FROM laV where laV_Idcav= cav_id) as Importe ";
constexpr const char* kFrom = "FROM Cav ";
constexpr const char* kJoinFav = "INNER JOIN Fav ON  Fav_Id = Cav_IdFactura ";
constexpr const char* kLibres = "WHERE (Cav_IdLca Is Null Or Cav_IdLca = 0) And Cav_Situa = 2 ";
constexpr const char* kAgente = "AND Cav_Agente = ";
constexpr const char* kOrden = " order by Fav_Fecha desc ";

std::string condicionRecibos(bool bCobradas, bool bPendientes) {
  if (bCobradas && bPendientes) return kAmbas;
  if (bCobradas) return std::string(kFacturaEn) + kRecibos + kCobradas;
  if (bPendientes) return std::string(kFacturaEn) + kRecibos + kPendientes;
  return "";
}

}  // namespace

void frmNewLiquidAgentes::cmbBuscarFacturas_Click() {
  if (Text1(0).Text().empty()) {
    Tag = "E";
    screen::MsgBox("No ha indicado el agente que desea liquidar");
    Text1(0).SetFocus();
    return;
  }
  // Code and limit date go into the statement as they stand. Notes of agent 0 have no agent.
  if (codigoDe(Text1(0).Text()).value_or(0) == 0) return avisaCodigoNoValido();
  if (!Text1(4).Text().empty() && !screen::IsDate(Text1(4).Text())) {
    Tag = "e";
    screen::MsgBox("La fecha límite no es válida", screen::style::Exclamation);
    Text1(4).SetFocus();
    return;
  }
  msBuscarFacturas();
}

void frmNewLiquidAgentes::msBuscarFacturas() {
  // As they were checked, whatever the pending events do.
  const std::string sAgente = Text1(0).Text();
  const std::string sHastaFecha = Text1(4).Text();

  ListView1.Clear();
  screen::DoEvents();
  if (!loaded()) return;
  // Another search may have come in with those events; its rows must not stand there twice.
  ListView1.Clear();

  rsAlb = ado::Recordset();

  std::string sFecha;
  if (!sHastaFecha.empty()) sFecha = kHastaFecha + sHastaFecha + kFinFecha;

  const std::string sRecibos = condicionRecibos(Check1.Value() == 1, Check2.Value() == 1);

  nAgenteLista = codigoDe(sAgente).value_or(0);
  const std::string sSql = std::string(kSelect) + std::string(data::sql::kNoteNet) + kImporte +
                           kFrom + kJoinFav + kLibres + kAgente + sAgente + sRecibos + sFecha +
                           kOrden;
  rsAlb = mdoKORVANTES::Conexion().Execute(sSql);

  for (; !rsAlb.isEOF(); rsAlb.MoveNext()) {
    const std::int32_t nIdCav = rsAlb.Collect("Cav_Id").asLong();
    const double dComision = mdoKORVANTES::oComponente()->msComisionAgente(3, nIdCav, 0);
    const std::string sSerie = screen::CStr(rsAlb.Collect("Fav_Serie"));
    const ado::Variant& importe = rsAlb.Collect("Importe");
    const double dImporte = importe.isNull() ? 0.0 : importe.asDouble();

    screen::ListView::ListItem& fila =
        ListView1.Add((sSerie.empty() ? "" : sSerie + "/") +
                      screen::Format(rsAlb.Collect("Fav_numero"), "000000"));
    fila.SubItems = {screen::Format(rsAlb.Collect("fav_fecha"), "yyyy-mm-dd"),
                     screen::CStr(rsAlb.Collect("Cav_NFiscal")),
                     screen::CStr(rsAlb.Collect("Albaran")),
                     screen::Format(oUtil->Redondea(dImporte, 2), "0.00"),
                     "0",
                     screen::Format(oUtil->Redondea(dComision, 2), "0.00")};
    fila.Tag = std::to_string(nIdCav);
    fila.Checked = false;
  }

  if (rsAlb.RecordCount() > 0) {
    fraAgente.Enabled = false;
    Frame1.Enabled = true;
    msCargaIva();
  } else {
    Tag = "e";
    screen::MsgBox("No existen facturas pendientes de liquidar");
  }
}

void frmNewLiquidAgentes::cmdSelTodo_Click() {
  for (std::size_t row = 0; row < ListView1.Count(); ++row) ListView1.Checked(row, true);
  msCalculaTotales();
}

void frmNewLiquidAgentes::ListView1_ItemCheck() {
  msCalculaTotales();
}

void frmNewLiquidAgentes::ListView1_ColumnClick(int columnIndex) {
  ListView1.SortKey = columnIndex - 1;
  ListView1.Sorted = true;
  if (bOrdenLista) {
    bOrdenLista = false;
    ListView1.SortOrder = 1;
  } else {
    bOrdenLista = true;
    ListView1.SortOrder = 0;
  }
}

void frmNewLiquidAgentes::ListView1_BeforeLabelEdit(int& cancel) {
  cancel = 1;
}

}  // namespace korvantes
