#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

frmNewLiquidAgentes::frmNewLiquidAgentes()
    : SearchForm("frmNewLiquidAgentes", Text1, {kFecha, kHastaFecha}),
      Label1(*this, "Label1", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}),
      Text1(*this, "Text1",
            {kCodigo, kNombre, kFecha, kPorIva, kHastaFecha, kObservaciones, kTotal, kIva, kBase,
             kPorRetencion, kRetencion}) {
  layOut();
  wire();
}

void frmNewLiquidAgentes::wire() {
  wireBoxes();
  cmbBuscarFacturas.Click = [this] { cmbBuscarFacturas_Click(); };
  cmdSelTodo.Click = [this] { cmdSelTodo_Click(); };
  cmdCancelar.Click = [this] { cmdCancelar_Click(); };
  cmdGrabar.Click = [this] { cmdGrabar_Click(); };
  cmdBorrar.Click = [this] { cmdBorrar_Click(); };
  cmdImprime.Click = [this] { cmdImprime_Click(); };
  cmdExcell.Click = [this] { cmdExcell_Click(); };
  cmdSalir.Click = [this] { cmdSalir_Click(); };
  ListView1.BeforeLabelEdit = [this](int& cancel) { ListView1_BeforeLabelEdit(cancel); };
  ListView1.ColumnClick = [this](int column) { ListView1_ColumnClick(column); };
  ListView1.ItemCheck = [this](const screen::ListView::ListItem&) { ListView1_ItemCheck(); };
}

void frmNewLiquidAgentes::Form_Load() {
  creaUtil();
  sTituloForm = "Liquidación de comisiones a agentes";
  msCargaLiquidacion();
}

void frmNewLiquidAgentes::Text1_LostFocus(int index) {
  screen::TextBox& box = Text1(index);
  oUtil->AlPerderFoco(box, "");
  if (box.Text().empty()) return;

  if (index == kCodigo) {
    std::optional<std::int32_t> nAgente = codigoDe(box.Text());
    if (!nAgente) return avisaCodigoNoValido();
    msBuscarAgente(*nAgente);
    if (nIdAgente == 0) avisaEn(box, "Código de agente no existe", screen::style::Plain);
  } else if (esFecha(index)) {
    oUtil->AlPerderFoco(box, "dd/mm/yyyy");
    try {
      msCargaIva();
    } catch (...) {
      // Amounts at the old rates must not remain next to empty rates.
      msCalculaTotales();
      throw;
    }
    msCalculaTotales();
  }
}

void frmNewLiquidAgentes::cmdCancelar_Click() {
  if (nLiqui != 0) return Unload();
  ListView1.Clear();
  for (int index :
       {kFecha, kPorIva, kObservaciones, kTotal, kIva, kBase, kPorRetencion, kRetencion})
    Text1(index).Text = "";
  sFalloTasas.clear();
  sFalloImportes.clear();
  Frame1.Enabled = false;
  fraAgente.Enabled = true;
  Text1(kCodigo).SetFocus();
}

void frmNewLiquidAgentes::cmdSalir_Click() {
  Unload();
}

}  // namespace korvantes
