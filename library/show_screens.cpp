// Shows the screens. It is above the screens, so that neither they nor the class include the other.
#include "agents/frmAgentes.h"
#include "component/component.h"
#include "report/frmLiquidAgentes.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr int kModal = 1;
/// The screen ignores the next release of Enter: it belongs to the key press that opened it.
constexpr const char* kEnterUsed = "e";

/// Creates a form and destroys it once the user has closed it.
template <class Form>
void muestra() {
  const auto formulario = std::make_unique<Form>();
  formulario->Tag = kEnterUsed;
  formulario->Show(kModal);
}

}  // namespace

void Component::jShow(const std::int32_t&) {
  muestra<frmAgentes>();
}

void Component::jShowNewLiqui() {
  muestra<frmNewLiquidAgentes>();
}

void Component::jShowInfLiqui() {
  muestra<frmLiquidAgentes>();
}

}  // namespace korvantes
