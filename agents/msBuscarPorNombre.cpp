#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

using namespace agents;

namespace {

constexpr const char* kFilas = "Select (0) as k ,AGE_ID,AGE_NOM FROM AGE";
constexpr const char* kOrden = "AGE_NOM";
constexpr long kAnchoCodigo = 800, kAnchoNombre = 6000;

}  // namespace

void frmAgentes::msBuscarPorNombre() {
  const std::string fila =
      oUtil->BuscaEnLista(kFilas, kOrden, "Codigo", "Nombre del Agente",
                          "Buscar Agentes por nombre", kAnchoCodigo, kAnchoNombre, 0);
  if (fila.size() <= 2) return;
  const std::string sCodigo = plindor::elementoDe(fila, 1);
  if (!msExisteAgente(sCodigo)) {
    screen::MsgBox("El agente " + sCodigo +
                       " se ha añadido después de leer la lista de esta pantalla. Ciérrela y "
                       "vuelva a abrirla para verlo.",
                   screen::style::Exclamation, kTitulo);
    return;
  }
  cmdCancelar.Enabled = true;
  cmdSalvar.Enabled = true;
  txtFields(kNombre).SetFocus();
}

}  // namespace korvantes
