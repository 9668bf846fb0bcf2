#include "host/screens.h"

#include <memory>

#include "host/failure.h"
#include "settlement/frmNewLiquidAgentes.h"

namespace korvantes::host {
namespace {

void openSettlement(KORVAN& component, std::optional<std::int32_t> number) {
  if (!number) {
    component.jShowNewLiqui();
    return;
  }
  const auto form = std::make_shared<frmNewLiquidAgentes>();
  form->nLiqui = *number;
  form->Show();
}

void openMissing(std::optional<std::int32_t>) {
  throw Failure("la pantalla todavía no existe");
}

}  // namespace

Screens screensOf(KORVAN& component) {
  return {
      {"liquidacion",
       [&component](std::optional<std::int32_t> number) { openSettlement(component, number); }},
      {"informe", openMissing},
      {"agentes", openMissing},
  };
}

}  // namespace korvantes::host
