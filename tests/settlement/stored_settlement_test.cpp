#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(StoredSettlement, OneThatIsGoneOrCannotBeShownIsNotTouchedByWhatIsSavedInItsPlace) {
  for (const bool gone : {true, false}) {
    World world;
    if (!gone) world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (99)");
    world.show(
        [&](Screen& screen) {
          EXPECT_FALSE(screen.control("cmdBorrar").Visible());
          screen.makeOut({1});
          screen.click("cmdGrabar");
        },
        1);
    EXPECT_EQ(world.sql("select * from Lca").RecordCount(), gone ? 1U : 2U);
  }
}

TEST(StoredSettlement, ListsNotesWithoutLinesAndInvoicesWithoutSeries) {
  World world;
  const int number = world.settle({2});
  world.show(
      [](Screen& screen) {
        EXPECT_EQ(screen.list().item(0).Text, "1234567");
        EXPECT_THAT(screen.list().item(0).SubItems,
                    ElementsAre("11/10/2026", "Bar Pepe", "/16", "0,00", "0,00", "0,00"));
      },
      number);
}

TEST(StoredSettlement, NullsShowAsEmptyFieldsAndUntickedFilters) {
  World world;
  world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (6)");
  world.show(
      [&](Screen& screen) {
        EXPECT_THAT(screen.contents(),
                    ElementsAre("6", "Luis Paz", "", "", "", "", "", "", "", "", ""));
        EXPECT_EQ(screen.control<screen::CheckBox>("Check1").Value(), 0);
      },
      1);
  EXPECT_THAT(world.messages, IsEmpty());
}

}  // namespace
}  // namespace korvantes::settlement
