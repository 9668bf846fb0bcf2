#include "agents/frmAgentes.h"

#include "agents/fields.h"
#include "component/mdoKORVANTES.h"
#include "runtime/screen/desktop.h"
#include "runtime/screen/user_input.h"

namespace korvantes {

using namespace agents;

frmAgentes::frmAgentes()
    : Form("frmAgentes"),
      Label1(*this, "Label1", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 21, 23}),
      txtFields(*this, "txtFields", {0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10}) {
  layOut();
  wire();
}

void frmAgentes::wire() {
  for (const auto& [number, box] : txtFields.all()) {
    const int index = number;
    box->GotFocus = [this, index] { txtFields_GotFocus(index); };
    box->KeyPress = [this, index](int& character) { txtFields_KeyPress(index, character); };
    box->Change = [this, index] { txtFields_Change(index); };
    box->LostFocus = [this, index] { txtFields_LostFocus(index); };
  }
  cboProvincias.Click = [this] { cboProvincias_Click(); };
  dboOper.KeyUp = [this](int& keyCode, int) { teclaSoltada(keyCode); };
  cmdNuevo.Click = [this] { cmdNuevo_Click(); };
  cmdCancelar.Click = [this] { cmdCancelar_Click(); };
  cmdSalvar.Click = [this] { cmdSalvar_Click(); };
  cmdSalir.Click = [this] { cmdSalir_Click(); };
  cmdImagen.Click = [this] { cmdImagen_Click(); };
  cmdGuardarImagen.Click = [this] { cmdGuardarImagen_Click(); };
}

void frmAgentes::Form_Load() {
  oUtil = std::make_unique<plindor::UtilFormulario>();
  oUtil->ColorFoco = 65535;
  oUtil->ColorNormal = 16777215;
  oUtil->Conexion(mdoKORVANTES::ConexionRetenida());
  cargaListas();
  msCargaAgentes();
  nIdAgente = 0;
}

void frmAgentes::Form_Unload() {
  oUtil.reset();
}

void frmAgentes::Form_KeyUp(int& keyCode, int /*shift*/) {
  teclaSoltada(keyCode);
}

// A key pressed in the grid arrives twice, through the form and then through the grid. Once handled
// it is consumed, or Enter would move on two fields and F1 would open its list twice.
void frmAgentes::teclaSoltada(int& keyCode) {
  switch (keyCode) {
    case screen::key::Enter:
      keyCode = 0;
      if (Tag().empty()) screen::SendKeys("\t");
      break;
    case screen::key::Escape:
      keyCode = 0;
      Unload();
      break;
    case screen::key::KeypadDecimal:
      keyCode = screen::key::Comma;
      break;
    case screen::key::F1:
      keyCode = 0;
      msBuscarPorNombre();
      break;
    default:
      break;
  }
  Tag = "";
}

void frmAgentes::cmdNuevo_Click() {
  msEstadoPantalla(AgenteNuevo);
  txtFields(kNombre).SetFocus();
}

void frmAgentes::cmdCancelar_Click() {
  msEstadoPantalla(Consulta);
  msPosicionAgente(0, true);
  txtFields(kCodigo).SetFocus();
}

void frmAgentes::cmdSalir_Click() {
  Unload();
}

}  // namespace korvantes
