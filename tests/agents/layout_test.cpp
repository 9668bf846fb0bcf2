#include <gmock/gmock.h>
#include <map>

#include "tests/agents/agents_world.h"

namespace korvantes::agents {
namespace {

TEST(AgentsLayout, EverythingLiesWithinItsFrameAndTabWalksTheFieldsInOrder) {
  World world;
  world.show([](Screen& screen) {
    std::map<int, std::string> owner;
    for (const screen::Control* control : screen.form.controls()) {
      const auto kind = control->kind();
      if (kind == screen::Control::Kind::Image || kind == screen::Control::Kind::CommonDialog)
        continue;
      const auto [taken, fresh] = owner.try_emplace(control->TabIndex(), control->identity());
      EXPECT_TRUE(fresh) << control->identity() << " and " << taken->second;
      const screen::Frame* frame = control->container();
      EXPECT_LE(control->Left() + control->Width(),
                frame != nullptr ? frame->Width() : screen.form.Width())
          << control->identity();
      EXPECT_LE(control->Top() + control->Height(),
                frame != nullptr ? frame->Height() : screen.form.Height())
          << control->identity();
    }

    std::vector<std::string> walk;
    do {
      walk.push_back(screen.form.ActiveControl()->identity());
      screen.desktop.stroke(*screen::keyNamed("Tab"));
    } while (screen.form.ActiveControl()->identity() != walk.front() && walk.size() < 40);
    EXPECT_THAT(
        walk, testing::ElementsAre("txtFields(0)", "txtFields(1)", "txtFields(2)", "txtFields(3)",
                                   "txtFields(4)", "txtFields(5)", "cboProvincias", "txtFields(6)",
                                   "txtFields(7)", "txtFields(8)", "txtFields(10)", "txtFields(9)",
                                   "cboRegFiscal", "cmdSalvar", "XPBorrar", "cmdImagen",
                                   "cmdGuardarImagen", "dboOper"));
  });
}

}  // namespace
}  // namespace korvantes::agents
