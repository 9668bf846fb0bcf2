#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

TEST(SettlementRates, AreThoseOfTheAgentsRegimeOnTheSettlementsDay) {
  struct Case {
    const char *agent, *day, *vat, *withholding;
    int row;  ///< of the table of rates, as stored
  };
  const Case cases[] = {
      {"5", "", "21,00", "19,00", 0},         {"5", "01072026", "21,00", "19,00", 2},
      {"5", "30062026", "18,00", "15,00", 1}, {"5", "31121994", "0", "0", 1},
      {"6", "24112026", "10,00", "0,00", 4},  // no regime counts as the first
      {"7", "24112026", "0", "0", 1},         // a regime without rates
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(std::string(each.agent) + " on " + each.day);
    World world;
    world.sqlAll(
        std::vector<std::string>{"INSERT INTO Cav VALUES (6, 'A', 19, 'x', 0, 0, 1, 6, 2, Null), "
                                 "(7, 'A', 20, 'x', 0, 0, 1, 7, 2, Null)"});
    world.show([&](Screen& screen) {
      screen.search(each.agent, false, false);
      screen.type(2, each.day);
      screen.go("Text1(7)");
      EXPECT_EQ(screen.text(3).Text(), each.vat);
      EXPECT_EQ(screen.text(11).Text(), each.withholding);
      screen.tick(0);
      screen.click("cmdGrabar");
    });
    const ado::Recordset stored = world.sql("select Lca_IdTiva from Lca");
    ASSERT_EQ(stored.RecordCount(), each.row == 0 ? 0U : 1U) << "without a day nothing is saved";
    if (each.row != 0) {
      EXPECT_EQ(stored.cell(0, 0).asLong(), each.row);
    }
  }
}

TEST(SettlementRates, FollowTheDayAndAreForgottenWithTheAgent) {
  World world;
  world.show([&](Screen& screen) {
    screen.makeOut({3});
    EXPECT_EQ(screen.text(9).Text(), "2,1");
    screen.type(2, "30062026");
    screen.go("Text1(7)");
    EXPECT_EQ(screen.text(9).Text(), "1,8");
    EXPECT_EQ(screen.text(12).Text(), "1,5");
    // The search is left without a choice: the agent stays on screen, his regime does not.
    screen.go("Text1(2)");
    screen.press("F1");
    screen.go("Text1(7)");
    EXPECT_EQ(screen.text(0).Text(), "5");
    EXPECT_EQ(screen.text(3).Text(), "0");
  });
}

}  // namespace
}  // namespace korvantes::settlement
