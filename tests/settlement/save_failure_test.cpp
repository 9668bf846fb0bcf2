#include <gmock/gmock.h>

#include "engines/sqlite/sqlite_connection.h"
#include "tests/settlement/settlement_world.h"
#include "tests/support/rows.h"
#include "tests/support/sweep.h"

namespace korvantes::settlement {
namespace {

using support::Fault;
using support::rowsOf;
using support::sweep;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

/// Saves with a failing call. A failed save shows a message, stores nothing and leaves the screen
/// as it was; the next click saves once.
void save(World& world, Screen& screen, Fault& fault) {
  const auto before = world.stored();
  const auto entered = screen.contents();
  const int settlement = screen.form.nLiqui;
  world.messages.clear();
  fault.during(*world.connection, [&] { screen.click("cmdGrabar"); });
  EXPECT_FALSE(world.connection->inTransaction());
  ASSERT_EQ(world.messages.size(), 1U);
  if (fault.met()) {
    EXPECT_THAT(world.messages[0],
                AllOf(StartsWith("[16] KORVANTES | Error "), HasSubstr(Fault::kWords)));
    EXPECT_EQ(screen.contents(), entered);
    EXPECT_EQ(screen.form.nLiqui, settlement);
    const auto stored = world.stored();
    EXPECT_EQ(stored != before, fault.afterwards("CommitTrans"));
    screen.click("cmdGrabar");
    if (stored != before) {
      // It is stored although nobody knows: saving once more must not store it twice.
      EXPECT_THAT(world.messages.back(), StartsWith("[16]"));
      EXPECT_EQ(world.stored(), stored);
      return;
    }
  }
  EXPECT_THAT(world.messages.back(), StartsWith("[64]"));
}

TEST(SettlementSaveFailure, WhateverCallFailsANewSettlementIsSavedOnceLater) {
  const std::string remarks = "l'acuerdo; de 2026 -- ñ";
  sweep<World>(6, [&](World& world, Fault& fault) {
    world.show([&](Screen& screen) {
      screen.makeOut({1, 3});
      screen.paste(7, remarks);
      save(world, screen, fault);
    });
    EXPECT_EQ(rowsOf(world.sql("select Lca_Obs, Cav_Id from Lca inner join Cav on Cav_IdLca = "
                               "Lca_Id order by Cav_Id")),
              (std::vector{remarks + "|1", remarks + "|3"}));
    EXPECT_EQ(world.count("Lca"), 1U);
  });
}

TEST(SettlementSaveFailure, WhateverCallFailsAStoredSettlementIsReplacedLaterNeverDoubled) {
  sweep<World>(9, [](World& world, Fault& fault) {
    world.open(world.settle({1, 2}), [&](Screen& screen) {
      screen.tick(screen.rowOf(2), false);
      save(world, screen, fault);
    });
    const ado::Recordset rows = world.sql("select Lca_Id, Lca_IdTiva from Lca");
    ASSERT_EQ(rows.RecordCount(), 1U);
    EXPECT_NE(rows.cell(0, 0).asLong(), 1);
    EXPECT_EQ(rows.cell(0, 1).asLong(), 2) << "nothing looked rates up";
    EXPECT_EQ(world.count("Lcd"), 1U);
    EXPECT_EQ(world.count("Cav where Cav_Id = 2 and Cav_IdLca is null"), 1U);
    if (fault.met()) return;
    EXPECT_THAT(fault.calls(),
                ElementsAre("Select Lcd_IdCav from Lcd where Lcd_IdLca = 1", "BeginTrans",
                            "Update Cav set Cav_IdLca = Null where Cav_IdLca = 1",
                            "delete from Lcd where Lcd_IdLca=1", "delete from Lca where Lca_Id=1",
                            StartsWith("INSERT INTO Lca ("), "Select max(Lca_id) from Lca",
                            StartsWith("INSERT INTO Lcd ("),
                            "Update Cav set Cav_IdLca = 2where cav_id = 1", "CommitTrans"));
  });
}

TEST(SettlementSaveFailure, ARollbackIsTriedTwiceAndDoesNotHideTheFirstError) {
  for (int refusals : {1, 2}) {
    World world;
    world.show([&](Screen& screen) {
      screen.makeOut({1});
      world.connection->failAt(2, ado::Error(13, "disco lleno"));
      world.connection->rollbackRefusals = refusals;
      screen.click("cmdGrabar");
      EXPECT_EQ(
          world.messages.back(),
          std::string("[16] KORVANTES | Error registrando liquidacion:\r\ndisco lleno") +
              (refusals == 1 ? ""
                             : "\r\nTampoco se han podido deshacer los cambios: sin conexión"));
      EXPECT_EQ(world.connection->inTransaction(), refusals == 2);
      if (refusals == 2) world.connection->RollbackTrans();
    });
  }
}

TEST(SettlementSaveFailure, ANoteThatAnotherUserHasSettledOrDeletedIsNotPaid) {
  World world;
  world.show([&](Screen& screen) {
    screen.makeOut({1, 3});
    const auto entered = screen.contents();
    sqlite::SqliteConnection other(world.path());
    other.Execute("INSERT INTO Lca (Lca_IdAg) VALUES (5)");
    other.Execute("INSERT INTO Lcd VALUES (1, 3)");
    other.Execute("Update Cav set Cav_IdLca = 1 where Cav_id = 3");
    const auto refused = [&](const std::string& message) {
      const auto before = world.stored();
      screen.click("cmdGrabar");
      EXPECT_THAT(world.messages.back(),
                  AllOf(StartsWith("[16] KORVANTES | Error "), testing::EndsWith(message)));
      EXPECT_EQ(world.stored(), before);
    };
    refused("\r\nEl albarán A/17 ya está en la liquidación 1.");
    EXPECT_EQ(screen.contents(), entered);

    screen.tick(screen.rowOf(3), false);
    world.sql("delete from Cav where Cav_Id = 1");
    refused("actualizando facturas liquidadas:\r\nEl albarán A/15 ya no existe.");

    // Without those notes the rest can be saved.
    screen.tick(screen.rowOf(1), false);
    screen.tick(screen.rowOf(4));
    screen.click("cmdGrabar");
    EXPECT_THAT(world.messages.back(), StartsWith("[64]"));
  });
}

TEST(SettlementSaveFailure, ASettlementThatAnotherUserHasReplacedIsNotWrittenAgain) {
  for (bool keepsRows : {true, false}) {
    World world;
    world.open(world.settle({1}), [&](Screen& screen) {
      if (!keepsRows) screen.tick(0, false);
      world.open(1, [](Screen& second) { second.click("cmdGrabar"); });
      const auto before = world.stored();
      screen.click("cmdGrabar");
      EXPECT_EQ(world.messages.back(),
                "[16] KORVANTES | La liquidación 1 ya no existe:\r\notro usuario la ha cambiado o "
                "eliminado. Cierre y vuelva a buscarla.");
      EXPECT_EQ(world.stored(), before);
    });
  }
}

}  // namespace
}  // namespace korvantes::settlement
