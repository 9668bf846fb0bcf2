#include "settlement/frmNewLiquidAgentes.h"

#include "component/mdoKORVANTES.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"
#include "runtime/screen/user_input.h"

namespace korvantes {

namespace {

constexpr int kCodigo = 0, kFecha = 2, kFechaLimite = 4;

bool esFecha(int index) {
  return index == kFecha || index == kFechaLimite;
}

std::string sinBarras(const std::string& text) {
  std::string digits;
  for (char c : text)
    if (c != '/') digits += c;
  return digits;
}

}  // namespace

frmNewLiquidAgentes::frmNewLiquidAgentes()
    : Form("frmNewLiquidAgentes"),
      Label1(*this, "Label1", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 12}),
      Text1(*this, "Text1", {0, 1, 2, 3, 4, 7, 8, 9, 10, 11, 12}) {
  layOut();
  wire();
}

void frmNewLiquidAgentes::wire() {
  for (const auto& [number, box] : Text1.all()) {
    const int index = number;
    box->GotFocus = [this, index] { Text1_GotFocus(index); };
    box->LostFocus = [this, index] { Text1_LostFocus(index); };
    box->KeyPress = [this, index](int& character) { Text1_KeyPress(index, character); };
  }
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
  oUtil = std::make_unique<plindor::UtilFormulario>();
  oUtil->Conexion(mdoKORVANTES::ConexionRetenida());
  oUtil->ColorFoco = 65535;
  oUtil->ColorNormal = 16777215;
  sTituloForm = "Liquidación de comisiones a agentes";
  msCargaLiquidacion();
}

void frmNewLiquidAgentes::Form_KeyUp(int& keyCode, int /*shift*/) {
  switch (keyCode) {
    case screen::key::Enter:
      keyCode = 0;
      if (Tag().empty()) screen::SendKeys("\t");
      Tag = "";
      break;
    case screen::key::Escape:
      Unload();
      break;
    case screen::key::F1: {
      Tag = "e";
      std::int32_t nAgente = 0;
      msBuscarAgente(nAgente);
      break;
    }
    default:
      Tag = "";
      screen::DoEvents();
  }
}

void frmNewLiquidAgentes::Text1_GotFocus(int index) {
  screen::TextBox& box = Text1(index);
  if (esFecha(index)) box.Text = sinBarras(box.Text());
  oUtil->AlRecibirFoco(box, "");
}

void frmNewLiquidAgentes::Text1_LostFocus(int index) {
  screen::TextBox& box = Text1(index);
  oUtil->AlPerderFoco(box, "");
  if (box.Text().empty()) return;

  if (index == kCodigo) {
    std::optional<std::int32_t> nAgente = codigoDe(box.Text());
    if (!nAgente) return avisaCodigoNoValido();
    msBuscarAgente(*nAgente);
    if (nIdAgente == 0) {
      Tag = "e";
      screen::MsgBox("Código de agente no existe");
      box.SetFocus();
    }
  } else if (esFecha(index)) {
    oUtil->AlPerderFoco(box, "dd/mm/yyyy");
    msCargaIva();
    msCalculaTotales();
  }
}

void frmNewLiquidAgentes::Text1_KeyPress(int index, int& character) {
  if (index == kCodigo)
    oUtil->FiltraTecla(Text1(index), character, false);
  else if (esFecha(index))
    oUtil->FiltraTecla(Text1(index), character, true);
}

void frmNewLiquidAgentes::cmdCancelar_Click() {
  if (nLiqui != 0) return Unload();
  ListView1.Clear();
  for (int index : {2, 3, 7, 8, 9, 10, 11, 12}) Text1(index).Text = "";
  Frame1.Enabled = false;
  fraAgente.Enabled = true;
  Text1(kCodigo).SetFocus();
}

void frmNewLiquidAgentes::cmdSalir_Click() {
  Unload();
}

}  // namespace korvantes
