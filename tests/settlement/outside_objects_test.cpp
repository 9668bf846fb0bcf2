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
    screen.click("cmdExcell");
    screen.makeOut({1});
    screen.click("Check3");
    screen.click("cmdGrabar");
    EXPECT_EQ(screen.list().Count(), 0U);
  });
  const int number = world.sql("select Lca_Id from Lca").cell(0, 0).asLong();
  world.show(
      [&](Screen& screen) {
        const auto before = screen.contents();
        screen.click("cmdImprime");
        screen.click("cmdExcell");
        EXPECT_EQ(screen.contents(), before);
        EXPECT_TRUE(screen.form.Enabled());
        // Saved without rows it is gone, while the buttons stay.
        screen.tick(0, false);
        screen.click("cmdGrabar");
        screen.click("cmdImprime");
      },
      number);
  const std::string list = "ListToExcel | ListView1 (disabled, pointer 0)";
  EXPECT_THAT(journal.lines,
              ElementsAre(list, "released", "MyBd = service", report(number), "released",
                          "MyBd = service", report(number), "released", list, "released",
                          "MyBd = service", report(0), "released"));
  EXPECT_EQ(world.messages.size(), 1U) << "of the removal";
}

TEST(SettlementOutsideObjects, AFailureIsToldAndLeavesTheScreenUsable) {
  for (const std::string words : {"", "disco lleno"}) {
    World world;
    support::OutsideJournal journal{{}, words};
    if (!words.empty()) journal.offer(world.desktop);
    const auto told = [&](const std::string& name) {
      return words.empty() ? "No hay ningún componente registrado con el nombre «" + name + "»"
                           : words;
    };
    const int number = world.settle({1});
    world.show(
        [&](Screen& screen) {
          const auto before = screen.contents();
          for (const char* button : {"cmdImprime", "cmdExcell"}) {
            screen.click(button);
            EXPECT_TRUE(screen.form.Enabled());
          }
          EXPECT_EQ(screen.contents(), before);
          screen.type(7, "sigue");
          EXPECT_EQ(screen.text(7).Text(), "sigue");
        },
        number);
    const std::string box = "[16] Liquidacion de comisiones a Agentes | ";
    EXPECT_THAT(world.messages,
                ElementsAre(box + told("marzenes.MZPrint"), box + told("BELTRIS.BSHEETS")));

    // What was stored stays stored: the screen is emptied as after a success.
    world.messages.clear();
    world.show([&](Screen& screen) {
      screen.makeOut({3});
      screen.click("Check3");
      screen.click("cmdGrabar");
      EXPECT_EQ(screen.list().Count(), 0U);
      EXPECT_EQ(screen.text(10).Text(), "");
    });
    EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 2U);
    EXPECT_THAT(world.messages,
                ElementsAre("[48] KORVANTES | La liquidacion se ha guardado, pero no se ha podido "
                            "imprimir:\r\n" +
                            told("marzenes.MZPrint")));
  }
}

}  // namespace
}  // namespace korvantes::settlement
