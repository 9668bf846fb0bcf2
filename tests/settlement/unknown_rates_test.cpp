#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kWords = "la tabla de tasas no responde";

/// Statements with these words fail from now on.
void lose(World& world, const std::string& words) {
  world.connection->onCall = [words](std::string_view statement) {
    if (statement.find(words) != std::string_view::npos) throw ado::Error(7, kWords);
  };
}

/// A save with a base on screen and no rates is refused, names the reason and the way out, and
/// writes nothing.
void expectRefused(World& world, Screen& screen, const char* base) {
  for (int index : {3, 11, 9, 12, 8}) EXPECT_EQ(screen.text(index).Text(), "") << index;
  EXPECT_EQ(screen.text(10).Text(), base);
  const auto before = world.stored();
  world.connection->forgetCalls();
  screen.click("cmdGrabar");
  EXPECT_THAT(world.messages.back(), AllOf(StartsWith("[16] KORVANTES | "), HasSubstr(kWords),
                                           HasSubstr("salir otra vez")));
  EXPECT_EQ(screen.form.ActiveControl(), &screen.text(2));
  EXPECT_THAT(world.connection->calls(), testing::Not(testing::Contains("BeginTrans")));
  EXPECT_EQ(world.stored(), before);
}

TEST(UnknownRates, OfTheSearchOrTheDateKeepANewSettlementFromBeingSavedUntilTheyAreRead) {
  for (const bool atSearch : {true, false}) {
    SCOPED_TRACE(atSearch ? "search" : "date");
    World world;
    world.show([&](Screen& screen) {
      if (atSearch) lose(world, "Tivas");
      screen.search("5", false, false);
      lose(world, "Tivas");
      screen.type(2, "24112026");
      screen.click("cmdSelTodo");
      expectRefused(world, screen, "-38,07");
      // The four checks come first.
      screen.type(2, "25112026");
      screen.click("cmdGrabar");
      EXPECT_THAT(world.messages.back(), HasSubstr("superior a la actual"));

      world.connection->onCall = nullptr;
      screen.type(2, "24112026");
      screen.click("cmdGrabar");
      EXPECT_THAT(world.messages.back(), StartsWith("[64]"));
    });
    EXPECT_EQ(world.count("Lca where Lca_IdTiva = 2"), 1U);
  }
}

TEST(UnknownRates, OfAStoredSettlementKeepItFromBeingSavedButNotFromBeingRemoved) {
  for (const char* table : {"Tivas", "SELECT Age_Reg"}) {
    SCOPED_TRACE(table);
    World world;
    world.open(world.settle({1, 3}), [&](Screen& screen) {
      lose(world, table);
      screen.go("Text1(2)");
      screen.go("Text1(7)");
      expectRefused(world, screen, "11,93");
      for (std::size_t row = 0; row < 2; ++row) screen.tick(row, false);
      screen.click("cmdGrabar");
      EXPECT_THAT(world.messages.back(), StartsWith("[64]"));
    });
    EXPECT_EQ(world.count("Lca"), 0U);
  }
}

TEST(UnknownRates, AreForgottenByCancellingAndByTheNextSearchAndNoOtherAgentsRatesRemain) {
  World world;
  world.addNote(19, 6, "1");
  world.show([&](Screen& screen) {
    lose(world, "Tivas");
    screen.search("5", false, false);
    screen.click("cmdCancelar");
    screen.click("cmdSelTodo");
    EXPECT_EQ(screen.text(8).Text(), "0") << "nothing failed: no rates are none";
    world.connection->onCall = nullptr;
    screen.makeOut({3});
    EXPECT_EQ(screen.text(8).Text(), "10,2");
    screen.click("cmdCancelar");

    // The lookup of the second agent fails: his regime is read with the rates.
    lose(world, "Age_NOM");
    screen.search("6", false, false);
    EXPECT_EQ(screen.text(3).Text(), "10,00");
    EXPECT_EQ(screen.text(1).Text(), "");
    screen.click("cmdCancelar");
    // A search that fails halfway leaves rows, and the rates of the agent before.
    world.connection->onCall = nullptr;
    screen.type(2, "24112026");
    lose(world, "Cav_id = 4");
    screen.search("5", false, false);
    world.connection->onCall = nullptr;
    screen.click("cmdSelTodo");
    screen.click("cmdGrabar");
    EXPECT_THAT(world.messages.back(), HasSubstr("La búsqueda no ha terminado."));
  });
  EXPECT_EQ(world.count("Lca"), 0U);
}

}  // namespace
}  // namespace korvantes::settlement
