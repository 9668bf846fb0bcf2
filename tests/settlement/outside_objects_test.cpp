#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"
#include "tests/support/outside_journal.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;

std::string report(int number) {
  return "ShowReport | 11 | select age_id,age_nom,age_nif,lca.* from lca inner join age on "
         "lca_idag=age_id  Where lca_id = " +
         std::to_string(number) + " | 0 (enabled, pointer 0)";
}

TEST(SettlementOutsideObjects, GetTheStoredSettlementToPrintAndTheListToExport) {
  World world;
  support::OutsideJournal journal;
  journal.offer(world.desktop);
  world.show([&](Screen& screen) {
    screen.makeOut({1});
    screen.click("Check3");
    screen.click("cmdGrabar");
  });
  world.open(1, [&](Screen& screen) {
    const auto before = screen.contents();
    screen.click("cmdExcell");
    EXPECT_EQ(screen.contents(), before);
    EXPECT_TRUE(screen.form.Enabled());
    // Saved without rows it is gone, while the buttons stay.
    screen.tick(0, false);
    screen.click("cmdGrabar");
    screen.click("cmdImprime");
  });
  EXPECT_THAT(journal.lines, ElementsAre("MyBd = service", report(1), "released",
                                         "ListToExcel | ListView1 (disabled, pointer 0)",
                                         "released", "MyBd = service", report(0), "released"));
}

TEST(SettlementOutsideObjects, AFailureShowsAMessageAndLeavesTheScreenUsable) {
  const auto missing = [](const std::string& name) {
    return "No hay ningún componente registrado con el nombre «" + name + "»";
  };
  for (const std::string words : {"", "disco lleno"}) {
    World world;
    support::OutsideJournal journal{{}, words};
    if (!words.empty()) journal.offer(world.desktop);
    const std::string noReport = words.empty() ? missing("marzenes.MZPrint") : words;
    const std::string noSheet = words.empty() ? missing("BELTRIS.BSHEETS") : words;
    const std::string box = "[16] Liquidacion de comisiones a Agentes | ";
    world.open(world.settle({1}), [&](Screen& screen) {
      const auto before = screen.contents();
      screen.click("cmdImprime");
      screen.click("cmdExcell");
      EXPECT_THAT(world.messages, ElementsAre(box + noReport, box + noSheet));
      EXPECT_EQ(screen.contents(), before);
      EXPECT_TRUE(screen.form.Enabled());
      // What was stored stays stored: the screen is emptied as after a success.
      screen.click("Check3");
      screen.click("cmdGrabar");
      EXPECT_EQ(screen.list().Count(), 0U);
      EXPECT_EQ(
          world.messages.back(),
          "[48] KORVANTES | La liquidacion se ha guardado, pero no se ha podido imprimir:\r\n" +
              noReport);
    });
    EXPECT_EQ(world.count("Lca where Lca_Id = 2"), 1U);
  }
}

}  // namespace
}  // namespace korvantes::settlement
