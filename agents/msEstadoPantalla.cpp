#include "agents/fields.h"
#include "agents/frmAgentes.h"

namespace korvantes {

using namespace agents;

void frmAgentes::msEstadoPantalla(int nModo) {
  screen::TextBox& codigo = txtFields(kCodigo);

  if (nIdAgente < 1) {
    Frame2.Enabled = false;
  } else {
    Frame2.Enabled = true;
    cmdNuevo.Visible = true;
  }

  switch (nModo) {
    case AgenteNuevo:
      imgAgente.Picture = screen::Picture();
      Frame2.Enabled = false;
      codigo.Enabled = false;
      codigo.Visible = false;
      cmdSalvar.Enabled = true;
      cmdCancelar.Enabled = true;
      cmdNuevo.Enabled = false;
      cmdNuevo.Visible = false;
      LblCodigo.Visible = true;
      for (int index : {kNif, kDireccion, kCodigo, kNombre}) txtFields(index).Text = "";
      codigosSinEntrada.clear();
      break;
    case Consulta:
      LblCodigo.Visible = false;
      cmdNuevo.Visible = true;
      codigo.Enabled = true;
      codigo.Visible = true;
      codigo.BackColor = screen::kWindowBackground;
      codigo.ForeColor = screen::rgb(0, 0, 128);
      cmdNuevo.Enabled = true;
      cmdCancelar.Enabled = false;
      cmdSalvar.Enabled = true;
      break;
    default:
      break;
  }
}

}  // namespace korvantes
