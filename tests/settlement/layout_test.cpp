#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;

TEST(SettlementLayout, TabVisitsTheFieldsInTheOrderOfWorkAndNeverTheComputedOnes) {
  World world;
  world.show([](Screen& screen) {
    std::vector<std::string> visited;
    screen::Control* stop = nullptr;
    while ((stop = screen.form.nextTabStop(stop)) != nullptr) {
      if (!visited.empty() && stop->identity() == visited.front()) break;
      visited.push_back(stop->identity());
    }
    EXPECT_THAT(visited,
                ElementsAre("Text1(0)", "Text1(1)", "Text1(4)", "Check1", "Check2",
                            "cmbBuscarFacturas", "ListView1", "Text1(7)", "Text1(2)", "Check3",
                            "cmdCancelar", "cmdSelTodo", "cmdGrabar", "cmdExcell", "cmdSalir"));
  });
}

TEST(SettlementLayout, NoTwoControlsShareATabIndexAndEachLiesInsideItsContainer) {
  World world;
  world.show([](Screen& screen) {
    std::map<int, std::string> owner;
    for (const screen::Control* control : screen.form.controls()) {
      const auto [taken, fresh] = owner.try_emplace(control->TabIndex(), control->identity());
      EXPECT_TRUE(fresh) << control->identity() << " and " << taken->second;
      const screen::Frame* frame = control->container();
      const int width = frame != nullptr ? frame->Width() : screen.form.Width();
      const int height = frame != nullptr ? frame->Height() : screen.form.Height();
      EXPECT_LE(control->Left() + control->Width(), width) << control->identity();
      EXPECT_LE(control->Top() + control->Height(), height) << control->identity();
    }
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
