#include "component/mdoKORVANTES.h"
#include "data/listed_notes.h"
#include "runtime/screen/conversions.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

void frmNewLiquidAgentes::cmbBuscarFacturas_Click() {
  if (Text1(kCodigo).Text().empty()) {
    Tag = "E";
    screen::MsgBox("No ha indicado el agente que desea liquidar");
    Text1(kCodigo).SetFocus();
    return;
  }
  // Code and limit date go into the statement unchanged. Notes of agent 0 have no agent.
  if (codigoDe(Text1(kCodigo).Text()).value_or(0) == 0) return avisaCodigoNoValido();
  if (!Text1(kHastaFecha).Text().empty() && !screen::IsDate(Text1(kHastaFecha).Text()))
    return avisaEn(Text1(kHastaFecha), "La fecha límite no es válida");
  msBuscarFacturas();
}

void frmNewLiquidAgentes::msBuscarFacturas() {
  // Copies of what was checked: the pending events below may change the boxes.
  data::PendingFilter filtro;
  filtro.agent = Text1(kCodigo).Text();
  filtro.until = Text1(kHastaFecha).Text();

  ListView1.Clear();
  screen::DoEvents();
  if (!loaded()) return;
  // One of those events may have been another search; its rows must not be listed twice.
  ListView1.Clear();

  rsAlb = ado::Recordset();
  sFalloImportes.clear();
  // The rates on screen may be those of another agent until msCargaIva has run. A search that fails
  // before that leaves rows in the list.
  sFalloTasas = "La búsqueda no ha terminado.";

  filtro.collected = Check1.Value() == 1;
  filtro.uncollected = Check2.Value() == 1;
  nAgenteLista = codigoDe(filtro.agent).value_or(0);
  ado::Connection& conexion = mdoKORVANTES::Conexion();
  rsAlb = conexion.Execute(data::pendingStatement(filtro));

  for (; !rsAlb.isEOF(); rsAlb.MoveNext()) {
    const data::ListedNote albaran = data::listedNote(conexion, rsAlb);
    const std::string sSerie = screen::CStr(rsAlb.Collect("Fav_Serie"));

    screen::ListView::ListItem& fila =
        ListView1.Add((sSerie.empty() ? "" : sSerie + "/") +
                      screen::Format(rsAlb.Collect("Fav_numero"), "000000"));
    fila.SubItems = {screen::Format(rsAlb.Collect("fav_fecha"), "yyyy-mm-dd"),
                     screen::CStr(rsAlb.Collect("Cav_NFiscal")),
                     screen::CStr(rsAlb.Collect("Albaran")),
                     screen::Format(albaran.amount, "0.00"),
                     "0",
                     screen::Format(albaran.commission, "0.00")};
    fila.Tag = std::to_string(albaran.id);
    fila.Checked = false;
  }

  if (rsAlb.RecordCount() > 0) {
    fraAgente.Enabled = false;
    Frame1.Enabled = true;
    msCargaIva();
  } else {
    sFalloTasas.clear();
    avisa("No existen facturas pendientes de liquidar", screen::style::Plain);
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
