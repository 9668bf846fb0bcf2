// The picture of an agent: chosen from a file, then stored.
#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "component/mdoKORVANTES.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"

namespace korvantes {

using namespace agents;

namespace {

constexpr const char* kFiltro = "Imágenes (*.bmp;*.jpg;*.gif;*.tif)|*.bmp;*.jpg;*.gif;*.tif";
constexpr int kPunteroReloj = 13, kPunteroNormal = 0;

}  // namespace

void frmAgentes::cmdImagen_Click() {
  cmdDialogo.FileName = "";
  cmdDialogo.Filter = kFiltro;
  if (!cmdDialogo.ShowOpen()) return;
  // Throws if the file is not a picture; the one on screen stays.
  imgAgente.Picture = screen::Desktop::current().loadPicture(cmdDialogo.FileName());
}

void frmAgentes::cmdGuardarImagen_Click() {
  const std::string& sCodigo = txtFields(kCodigo).Text();
  if (sCodigo.empty() || !screen::IsNumeric(sCodigo)) return;
  const std::int32_t nId = screen::CLng(sCodigo);
  screen::Desktop& desktop = screen::Desktop::current();
  desktop.mousePointer(kPunteroReloj);
  mdoKORVANTES::msGuardaImagen(nId, imgAgente);
  desktop.mousePointer(kPunteroNormal);
}

}  // namespace korvantes
