#include <algorithm>
#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;

TEST(SettlementLayout, TabFollowsTheOrderOfWorkAndNothingIsHidden) {
  World world;
  world.show([](Screen& screen) {
    EXPECT_THAT(support::tabStops(screen.form),
                ElementsAre("Text1(0)", "Text1(1)", "Text1(4)", "Check1", "Check2",
                            "cmbBuscarFacturas", "ListView1", "Text1(7)", "Text1(2)", "Check3",
                            "cmdCancelar", "cmdSelTodo", "cmdGrabar", "cmdExcell", "cmdSalir"));
    EXPECT_THAT(support::misplaced(screen.form), ElementsAre());
    // Later controls lie in front: the heading must not cover its filters.
    std::vector<std::string> order;
    for (const auto* control : screen.form.controls()) order.push_back(control->identity());
    EXPECT_LT(std::ranges::find(order, "Label1(0)"), std::ranges::find(order, "Check1"));
  });
}

}  // namespace
}  // namespace korvantes::settlement
