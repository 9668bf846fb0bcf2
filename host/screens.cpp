#include "host/screens.h"

#include <memory>

#include "scripts/failure.h"
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

/// For the screens that take no number.
scripts::Screens::mapped_type without(std::string_view screen, std::function<void()> open) {
  return [screen, open = std::move(open)](std::optional<std::int32_t> number) {
    if (number) throw Failure("abrir " + std::string(screen) + ": no se espera un número");
    open();
  };
}

}  // namespace

scripts::Screens screensOf(KORVAN& component) {
  return {
      {"liquidacion",
       [&component](std::optional<std::int32_t> number) { openSettlement(component, number); }},
      {"informe", without("informe", [&component] { component.jShowInfLiqui(); })},
      {"agentes", without("agentes", [&component] { component.jShow(); })},
  };
}

}  // namespace korvantes::host
