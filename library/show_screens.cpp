// What shows the screens: it stands above them, so that no screen and no class includes the other
// way round.
#include "agents/frmAgentes.h"
#include "component/KORVAN.h"
#include "report/frmLiquidAgentes.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes {

namespace {

constexpr int kModal = 1;
/// Marks the next release of Enter as used up: it is that of the key which opened the screen.
constexpr const char* kEnterUsed = "e";

/// A fresh form at each call; it is gone when the user has closed it.
template <class Form>
void muestra() {
  const auto formulario = std::make_unique<Form>();
  formulario->Tag = kEnterUsed;
  formulario->Show(kModal);
}

}  // namespace

void KORVAN::jShow(const std::int32_t&) {
  muestra<frmAgentes>();
}

void KORVAN::jShowNewLiqui() {
  muestra<frmNewLiquidAgentes>();
}

void KORVAN::jShowInfLiqui() {
  muestra<frmLiquidAgentes>();
}

}  // namespace korvantes
