#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"
#include "tests/support/rows.h"

namespace korvantes::settlement {
namespace {

TEST(SettlementRates, AreThoseOfTheAgentsRegimeOnTheSettlementsDay) {
  const struct {
    const char *agent, *day, *vat, *withholding;
    std::vector<std::string> row;  ///< of the table of rates, as stored; none without a day
  } cases[] = {
      {"5", "", "21,00", "19,00", {}},
      {"5", "01072026", "21,00", "19,00", {"2"}},
      {"5", "30062026", "18,00", "15,00", {"1"}},
      {"5", "31121994", "0", "0", {"1"}},
      {"6", "24112026", "10,00", "0,00", {"4"}},  // no regime counts as the first
      {"7", "24112026", "0", "0", {"1"}},         // a regime without rates
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(std::string(each.agent) + " on " + each.day);
    World world;
    for (int agent : {6, 7}) world.addNote(agent, agent, "1");
    world.show([&](Screen& screen) {
      screen.search(each.agent, false, false);
      screen.type(2, each.day);
      screen.go("Text1(7)");
      EXPECT_EQ(screen.text(3).Text(), each.vat);
      EXPECT_EQ(screen.text(11).Text(), each.withholding);
      screen.tick(0);
      screen.click("cmdGrabar");
    });
    EXPECT_EQ(support::rowsOf(world.sql("select Lca_IdTiva from Lca")), each.row);
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
