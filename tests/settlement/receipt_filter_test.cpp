#include <algorithm>
#include <gtest/gtest.h>
#include <set>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

constexpr unsigned kMixtures = 256, kStates = 8, kCancelled = 8;

/// Whether a receipt of a state is in the mixture; state 1 is the lowest bit.
bool has(unsigned mixture, unsigned state) {
  return ((mixture >> (state - 1U)) & 1U) != 0;
}

/// All receipts that are not cancelled are in one of the wanted states, and there is one.
bool onlyIn(unsigned mixture, std::initializer_list<unsigned> wanted) {
  bool any = false;
  for (unsigned state = 1; state < kCancelled; ++state) {
    if (!has(mixture, state)) continue;
    if (std::ranges::find(wanted, state) == wanted.end()) return false;
    any = true;
  }
  return any;
}

bool anyUpToFive(unsigned mixture) {
  return (mixture & 0b11111U) != 0;
}

/// For every mixture of the states an invoice with a note of agent 6, both numbered by it. Odd
/// states come twice, so that receipts are counted and not states.
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
      for (unsigned copies = has(mixture, state) ? 1 + state % 2 : 0; copies > 0; --copies)
        rows.push_back("insert into Rec (Rec_Id, Rec_IdFac, Rec_Sit) values (" +
                       std::to_string(++receipt) + ", " + id + ", " + std::to_string(state) + ")");
  }
  world.sqlAll(rows);
}

TEST(ReceiptFilter, EveryMixtureOfStatesUnderAllFourFilters) {
  World world;
  addEveryMixture(world);
  std::set<std::string> all, collected, pending, either;
  for (unsigned mixture = 0; mixture < kMixtures; ++mixture) {
    const std::string note = std::to_string(mixture);
    all.insert(note);
    if (onlyIn(mixture, {5})) collected.insert(note);
    if (onlyIn(mixture, {1, 2, 3, 4})) pending.insert(note);
    if (anyUpToFive(mixture)) either.insert(note);
  }
  ASSERT_EQ(collected.size(), 2U);  // 5, and 5 with 8
  ASSERT_EQ(pending.size(), 30U);

  struct Case {
    bool collected, pending;
    const std::set<std::string>& listed;
  };
  for (const Case& each : {Case{false, false, all}, Case{true, false, collected},
                           Case{false, true, pending}, Case{true, true, either}}) {
    world.show([&](Screen& screen) {
      screen.search("6", each.collected, each.pending);
      std::set<std::string> notes;
      for (std::size_t row = 0; row < screen.list().Count(); ++row)
        EXPECT_TRUE(notes.insert(screen.list().item(row).Tag).second) << "listed twice";
      EXPECT_EQ(notes, each.listed) << each.collected << each.pending;
    });
  }
}

}  // namespace
}  // namespace korvantes::settlement
