// The rules of the fields.
#include "agents/fields.h"
#include "agents/frmAgentes.h"
#include "component/mdoKORVANTES.h"
#include "runtime/ado/utf8.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"
#include "runtime/screen/letters.h"

namespace korvantes {

using namespace agents;

namespace {

constexpr double kComisionLimite = 100;

std::string enMayusculas(std::string_view texto) {
  std::u32string letras = ado::toCodePoints(texto);
  for (char32_t& letra : letras) letra = screen::upperCase(letra);
  return ado::toUtf8(letras);
}

}  // namespace

void frmAgentes::txtFields_GotFocus(int index) {
  oUtil->AlRecibirFoco(txtFields(index), "");
}

void frmAgentes::txtFields_KeyPress(int index, int& character) {
  switch (index) {
    case kCodigo:
    case kComision:
      oUtil->FiltraTecla(txtFields(index), character, false);
      break;
    case kCodigoPostal:
      oUtil->FiltraTecla(txtFields(index), character, true);
      break;
    default:
      break;
  }
}

void frmAgentes::txtFields_Change(int index) {
  if (bSinFiltro) return;
  switch (index) {
    case kCodigo:
    case kCodigoPostal:
      oUtil->AlCambiarTexto(txtFields(index), nEstadoCambio, true, "");
      break;
    case kComision:
      oUtil->AlCambiarTexto(txtFields(index), nEstadoCambio, false, "");
      break;
    default:
      break;
  }
}

void frmAgentes::txtFields_LostFocus(int index) {
  screen::TextBox& box = txtFields(index);
  switch (index) {
    case kCodigo:
      oUtil->AlPerderFoco(box, "");
      if (!screen::IsNumeric(box.Text())) {
        box.Text = "0";
        return;
      }
      if (msExisteAgente(screen::CLng(box.Text()))) return;
      Tag = "e";
      screen::MsgBox("Codigo de agente no existe");
      box.SetFocus();
      break;
    case kNif:
      box.Text = mdoKORVANTES::msCompletaNif(box.Text());
      oUtil->AlPerderFoco(box, "");
      box.Text = enMayusculas(box.Text());
      break;
    case kComision:
      oUtil->AlPerderFoco(box, "0.000");
      // A text that is not a number at all is reported by the save.
      if (screen::parseNumber(box.Text()).value_or(0) < kComisionLimite) return;
      Tag = "3";
      screen::MsgBox("Error, el % de comisión deberá ser inferior a 100",
                     screen::style::Exclamation, "");
      box.SetFocus();
      break;
    default:
      oUtil->AlPerderFoco(box, "");
  }
}

}  // namespace korvantes
