#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"
#include "tests/support/sweep.h"

namespace korvantes::settlement {
namespace {

using screen::Answer;
using support::Fault;
using testing::ElementsAre;

constexpr const char* kFirst =
    "[308] Liquidación de comisiones a agentes | Desea eliminar la liquidación actual";
constexpr const char* kSecond =
    "[276] Liquidación de comisiones a agentes | Confirma que desea eliminar la liquidación actual";
const std::string kDone = "[64] Liquidación de comisiones a agentes | Liquidación eliminada ";
const std::string kFailed =
    "[16] Liquidación de comisiones a agentes | Error eliminando liquidación: \r\n";
constexpr const char* kOwnError = "Error definido por la aplicación o el objeto";
constexpr const char* kGone =
    "La liquidación 1 ya no existe: otro usuario la ha cambiado o eliminado.";

/// Deletes the settlement. The screen closes whatever happens.
void deleteWithTwoYes(World& world, Screen& screen) {
  world.messages.clear();
  world.answers = {Answer::Yes, Answer::Yes};
  screen.click("cmdBorrar");
  EXPECT_FALSE(screen.form.loaded());
  EXPECT_FALSE(world.connection->inTransaction());
}

TEST(SettlementDeletion, WhateverCallFailsAllOrNothingIsDeleted) {
  support::sweep<World>(5, [](World& world, Fault& fault) {
    world.settle({3});
    const auto others = world.stored();
    const int number = world.settle({1, 4});
    const auto before = world.stored();
    const auto open = [&](const std::function<void(Screen&)>& user) { world.show(user, number); };
    open([&](Screen& screen) {
      fault.during(*world.connection, [&] { deleteWithTwoYes(world, screen); });
    });
    const bool ofService = fault.call() > 1 && fault.call() < 5;
    EXPECT_THAT(
        world.messages,
        ElementsAre(kFirst, kSecond,
                    !fault.met() ? kDone : kFailed + (ofService ? kOwnError : Fault::kWords)));
    const bool deleted = !fault.met() || fault.afterwards("CommitTrans");
    EXPECT_EQ(world.stored(), deleted ? others : before);
    if (!deleted) open([&](Screen& screen) { deleteWithTwoYes(world, screen); });
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
    world.show(
        [&](Screen& screen) {
          world.show(
              [&](Screen& other) {
                if (replaced)
                  other.click("cmdGrabar");
                else
                  deleteWithTwoYes(world, other);
              },
              number);
          const auto before = world.stored();
          deleteWithTwoYes(world, screen);
          EXPECT_EQ(world.stored(), before);
        },
        number);
    EXPECT_THAT(world.messages, ElementsAre(kFirst, kSecond, kFailed + kGone));
    EXPECT_EQ(world.sql("select * from Lcd").RecordCount(), replaced ? 1U : 0U);
  }
}

TEST(SettlementDeletion, InsideATransactionOfAnotherIsRefusedAndWithoutNotesWorks) {
  World world;
  world.sql("INSERT INTO Lca (Lca_IdAg) VALUES (6)");
  world.show(
      [&](Screen& screen) {
        world.connection->BeginTrans();
        world.answers = {Answer::Yes, Answer::Yes};
        screen.click("cmdBorrar");
        EXPECT_FALSE(screen.form.loaded());
        EXPECT_TRUE(world.connection->inTransaction()) << "not ours to undo";
        EXPECT_THAT(world.messages, ElementsAre(kFirst, kSecond, testing::StartsWith(kFailed)));
        world.connection->RollbackTrans();
      },
      1);
  world.show([&](Screen& screen) { deleteWithTwoYes(world, screen); }, 1);
  EXPECT_EQ(world.messages.back(), kDone);
  EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 0U);
}

}  // namespace
}  // namespace korvantes::settlement
