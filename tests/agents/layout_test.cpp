#include <gmock/gmock.h>

#include "tests/agents/agents_world.h"

namespace korvantes::agents {
namespace {

TEST(AgentsLayout, EverythingLiesWithinItsFrameAndTabWalksTheFieldsInOrder) {
  World world;
  world.show([](Screen& screen) {
    EXPECT_THAT(support::misplaced(screen.form), testing::ElementsAre());
    EXPECT_THAT(support::tabStops(screen.form),
                testing::ElementsAre("txtFields(0)", "txtFields(1)", "txtFields(2)", "txtFields(3)",
                                     "txtFields(4)", "txtFields(5)", "cboProvincias",
                                     "txtFields(6)", "txtFields(7)", "txtFields(8)",
                                     "txtFields(10)", "txtFields(9)", "cboRegFiscal", "cmdSalvar",
                                     "XPBorrar", "cmdImagen", "cmdGuardarImagen", "dboOper"));
  });
}

}  // namespace
}  // namespace korvantes::agents
