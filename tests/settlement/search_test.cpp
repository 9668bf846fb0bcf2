#include <gtest/gtest.h>
#include <set>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

// A mixture of receipts is a set of states, state 1 as the lowest bit and state 8, cancelled, as
// the highest.
constexpr unsigned kMixtures = 256, kStates = 8, kLive = 0b0111'1111, kUpToFive = 0b0001'1111;

/// Whether receipts that are not cancelled exist and are all in one of the wanted states.
bool onlyIn(unsigned mixture, unsigned wanted) {
  return (mixture & kLive) != 0 && (mixture & kLive & ~wanted) == 0;
}

/// Adds an invoice with a note of agent 6 for every mixture, both numbered by it. Odd states come
/// twice, so that receipts are counted and not states.
void addEveryMixture(World& world) {
  std::vector<std::string> rows = {"delete from Cav", "delete from Fav"};
  int receipt = 0;
  for (unsigned mixture = 0; mixture < kMixtures; ++mixture) {
    const std::string id = std::to_string(mixture);
    rows.push_back("insert into Fav (Fav_Id, Fav_IdCli, Fav_Fecha) values (" + id +
                   ", 1, '01/02/2026')");
    rows.push_back("insert into Cav values (" + id + ", 'A', 1, 'x', 0, 0, " + id +
                   ", 6, 2, Null)");
    for (unsigned state = 1; state <= kStates; ++state)
      for (unsigned copies = (mixture >> (state - 1) & 1U) * (1 + state % 2); copies > 0; --copies)
        rows.push_back("insert into Rec (Rec_Id, Rec_IdFac, Rec_Sit) values (" +
                       std::to_string(++receipt) + ", " + id + ", " + std::to_string(state) + ")");
  }
  world.sqlAll(rows);
}

TEST(SettlementSearch, FindsEveryMixtureOfReceiptsUnderAllFourFilters) {
  World world;
  addEveryMixture(world);
  struct Case {
    bool collected, pending;
    bool (*listed)(unsigned mixture);
    std::size_t count;
  };
  const Case cases[] = {
      {false, false, [](unsigned) { return true; }, kMixtures},
      {true, false, [](unsigned m) { return onlyIn(m, 0b0001'0000); }, 2},
      {false, true, [](unsigned m) { return onlyIn(m, 0b0000'1111); }, 30},
      {true, true, [](unsigned m) { return (m & kUpToFive) != 0; }, 248},
  };
  for (const Case& each : cases) {
    std::set<std::string> expected;
    for (unsigned mixture = 0; mixture < kMixtures; ++mixture)
      if (each.listed(mixture)) expected.insert(std::to_string(mixture));
    ASSERT_EQ(expected.size(), each.count);
    world.show([&](Screen& screen) {
      screen.search("6", each.collected, each.pending);
      std::set<std::string> notes;
      for (std::size_t row = 0; row < screen.list().Count(); ++row)
        EXPECT_TRUE(notes.insert(screen.list().item(row).Tag).second) << "listed twice";
      EXPECT_EQ(notes, expected) << each.collected << each.pending;
    });
  }
}

TEST(SettlementSearch, DuringAnotherListsNoNoteTwice) {
  World world;
  world.show([&](Screen& screen) {
    screen.search("5", false, false);
    const auto listed = screen.contents();
    screen.click("cmdCancelar");
    screen.go("cmbBuscarFacturas");
    // A second Enter on the button, while the first search lets pending events run.
    world.desktop.sendKeys("\r");
    int searches = 0;
    world.connection->onCall = [&](std::string_view call) {
      searches += call.starts_with("SELECT Cav");
    };
    screen.user().click(screen.control("cmbBuscarFacturas"));
    EXPECT_EQ(searches, 2);
    EXPECT_EQ(screen.contents(), listed);
  });
}

}  // namespace
}  // namespace korvantes::settlement
