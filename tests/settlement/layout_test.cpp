#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;

TEST(SettlementLayout, TabVisitsTheFieldsInTheOrderOfWorkAndEachLiesInsideItsContainer) {
  World world;
  world.show([](Screen& screen) {
    EXPECT_THAT(support::tabStops(screen.form),
                ElementsAre("Text1(0)", "Text1(1)", "Text1(4)", "Check1", "Check2",
                            "cmbBuscarFacturas", "ListView1", "Text1(7)", "Text1(2)", "Check3",
                            "cmdCancelar", "cmdSelTodo", "cmdGrabar", "cmdExcell", "cmdSalir"));
    EXPECT_THAT(support::misplaced(screen.form), ElementsAre());
  });
}

TEST(SettlementLayout, TheFiltersLieInFrontOfTheirHeading) {
  World world;
  world.show([](Screen& screen) {
    const auto& controls = screen.form.controls();
    const auto place = [&](const char* identity) {
      return std::ranges::find(controls, &screen.control(identity)) - controls.begin();
    };
    EXPECT_LT(place("Label1(0)"), place("Check1"));
    EXPECT_LT(place("Label1(0)"), place("Check2"));
  });
}

}  // namespace
}  // namespace korvantes::settlement
