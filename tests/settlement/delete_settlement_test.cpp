#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"
#include "tests/support/sweep.h"

namespace korvantes::settlement {
namespace {

using screen::Answer;
using support::Fault;
using testing::ElementsAre;

const std::string kTitle = "] Liquidación de comisiones a agentes | ";
const std::string kFirst = "[308" + kTitle + "Desea eliminar la liquidación actual";
const std::string kSecond = "[276" + kTitle + "Confirma que desea eliminar la liquidación actual";
const std::string kDone = "[64" + kTitle + "Liquidación eliminada ";
const std::string kFailed = "[16" + kTitle + "Error eliminando liquidación: \r\n";

/// Deletes the settlement. The screen closes whatever happens.
void deleteWithTwoYes(World& world, Screen& screen) {
  world.messages.clear();
  world.answers = {Answer::Yes, Answer::Yes};
  screen.click("cmdBorrar");
  EXPECT_FALSE(screen.form.loaded());
}

TEST(SettlementDeletion, WhateverCallFailsAllOrNothingIsDeleted) {
  support::sweep<World>(5, [](World& world, Fault& fault) {
    world.settle({3});
    const auto others = world.stored();
    const int number = world.settle({1, 4});
    const auto before = world.stored();
    world.open(number, [&](Screen& screen) {
      fault.during(*world.connection, [&] { deleteWithTwoYes(world, screen); });
    });
    EXPECT_FALSE(world.connection->inTransaction());
    const bool ofService = fault.call() > 1 && fault.call() < 5;
    const std::string words =
        ofService ? "Error definido por la aplicación o el objeto" : Fault::kWords;
    EXPECT_THAT(world.messages,
                ElementsAre(kFirst, kSecond, fault.met() ? kFailed + words : kDone));
    const bool deleted = !fault.met() || fault.afterwards("CommitTrans");
    EXPECT_EQ(world.stored(), deleted ? others : before);
    if (!deleted) world.open(number, [&](Screen& screen) { deleteWithTwoYes(world, screen); });
    EXPECT_EQ(world.stored(), others);
    if (!fault.met()) {
      EXPECT_THAT(fault.calls(),
                  ElementsAre("BeginTrans", "UPDATE Cav SET Cav_IdLca = Null WHERE Cav_IdLca = 2",
                              "DELETE FROM Lcd WHERE Lcd_IdLca=2", "DELETE FROM Lca WHERE Lca_Id=2",
                              "CommitTrans"));
    }
  });
}

TEST(SettlementDeletion, OfOneThatAnotherUserHasReplacedOrDeletedIsRefused) {
  for (bool replaced : {true, false}) {
    World world;
    const int number = world.settle({1});
    world.open(number, [&](Screen& screen) {
      world.open(number, [&](Screen& other) {
        replaced ? other.click("cmdGrabar") : deleteWithTwoYes(world, other);
      });
      const auto before = world.stored();
      deleteWithTwoYes(world, screen);
      EXPECT_EQ(world.stored(), before);
    });
    EXPECT_EQ(world.messages.back(),
              kFailed + "La liquidación 1 ya no existe: otro usuario la ha cambiado o eliminado.");
    EXPECT_EQ(world.count("Lcd"), replaced ? 1U : 0U);
  }
}

TEST(SettlementDeletion, InsideATransactionOfAnotherIsRefusedAndWithoutNotesWorks) {
  World world;
  world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (6)");
  world.open(1, [&](Screen& screen) {
    world.connection->BeginTrans();
    deleteWithTwoYes(world, screen);
    EXPECT_TRUE(world.connection->inTransaction()) << "not ours to undo";
    EXPECT_THAT(world.messages.back(), testing::StartsWith(kFailed));
    world.connection->RollbackTrans();
  });
  world.open(1, [&](Screen& screen) { deleteWithTwoYes(world, screen); });
  EXPECT_EQ(world.messages.back(), kDone);
  EXPECT_EQ(world.count("Lca"), 0U);
}

}  // namespace
}  // namespace korvantes::settlement
