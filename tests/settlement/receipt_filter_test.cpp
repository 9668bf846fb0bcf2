#include <gmock/gmock.h>
#include <set>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

/// States of the receipts of an invoice, as bits: bit n is a receipt in state n.
bool passes(unsigned states, bool collected, bool pending) {
  const unsigned counted = states & ~(1U << 8);
  const unsigned paid = 1U << 5, unpaid = 1U << 1 | 1U << 2 | 1U << 3 | 1U << 4;
  if (collected && pending) return (counted & (paid | unpaid)) != 0;
  if (collected) return counted != 0 && (counted & ~paid) == 0;
  if (pending) return counted != 0 && (counted & ~unpaid) == 0;
  return true;
}

TEST(SettlementReceiptFilter, EveryMixtureOfStatesUnderEveryCombinationOfFilters) {
  World world;
  world.sql("delete from Cav where Cav_Agente = 5");
  int receipt = 0;
  world.connection->BeginTrans();
  for (unsigned states = 0; states < 1U << 9; states += 2) {
    const std::string id = std::to_string(1000 + states);
    world.sql("INSERT INTO Fav (Fav_Id, Fav_Numero, Fav_Fecha) VALUES (" + id + ", " + id +
              ", '10/10/2026')");
    world.sql("INSERT INTO Cav VALUES (" + id + ", 'A', 1, 'x', 0, 0, " + id + ", 5, 2, Null)");
    for (unsigned state = 1; state <= 8; ++state)
      if (states & 1U << state)
        world.sql("INSERT INTO Rec (Rec_Id, Rec_IdFac, Rec_Sit) VALUES (" +
                  std::to_string(++receipt) + ", " + id + ", " + std::to_string(state) + ")");
  }
  world.connection->CommitTrans();

  for (const auto& [collected, pending] :
       {std::pair{true, false}, {false, true}, {true, true}, {false, false}}) {
    world.show([&](Screen& screen) {
      screen.search("5", collected, pending);
      std::set<unsigned> listed, expected;
      for (std::size_t row = 0; row < screen.list().Count(); ++row)
        listed.insert(static_cast<unsigned>(std::stoi(screen.list().item(row).Tag)) - 1000);
      for (unsigned states = 0; states < 1U << 9; states += 2)
        if (passes(states, collected, pending)) expected.insert(states);
      EXPECT_EQ(listed, expected) << collected << pending;
      EXPECT_EQ(screen.list().Count(), listed.size());
    });
  }
}

}  // namespace
}  // namespace korvantes::settlement
