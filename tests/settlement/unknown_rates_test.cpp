#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using testing::AllOf;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kWords = "la tabla de tasas no responde";

/// Lookups of rates, or of the regime of a stored settlement's agent, fail from now on.
void lose(World& world, const std::string& table) {
  world.connection->onCall = [table](std::string_view statement) {
    if (statement.find(table) != std::string_view::npos) throw ado::Error(7, kWords);
  };
}

void heal(World& world) {
  world.connection->onCall = nullptr;
}

void expectUnknown(const Screen& screen, const char* base) {
  for (int index : {3, 11, 9, 12, 8}) EXPECT_EQ(screen.text(index).Text(), "") << index;
  EXPECT_EQ(screen.text(10).Text(), base);
}

/// A save is refused, names the reason and the way out, and writes nothing.
void expectRefused(World& world, Screen& screen) {
  const auto before = world.stored();
  world.messages.clear();
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
      expectUnknown(screen, "-38,07");
      expectRefused(world, screen);
      // The four checks come first.
      screen.type(2, "25112026");
      screen.click("cmdGrabar");
      EXPECT_THAT(world.messages.back(), HasSubstr("superior a la actual"));

      heal(world);
      screen.type(2, "24112026");
      screen.click("cmdGrabar");
      EXPECT_THAT(world.messages.back(), StartsWith("[64]"));
    });
    EXPECT_EQ(world.sql("select Lca_IdTiva from Lca").cell(0, 0).asLong(), 2);
  }
}

TEST(UnknownRates, OfAStoredSettlementKeepItFromBeingSavedButNotFromBeingRemoved) {
  for (const char* table : {"Tivas", "SELECT Age_Reg"}) {
    SCOPED_TRACE(table);
    World world;
    const int number = world.settle({1, 3});
    world.show(
        [&](Screen& screen) {
          lose(world, table);
          screen.go("Text1(2)");
          screen.go("Text1(7)");
          expectUnknown(screen, "11,93");
          expectRefused(world, screen);
          for (std::size_t row = 0; row < 2; ++row) screen.tick(row, false);
          screen.click("cmdGrabar");
          EXPECT_THAT(world.messages.back(), StartsWith("[64]"));
        },
        number);
    EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 0U);
  }
}

TEST(UnknownRates, AreForgottenByCancellingAndByTheNextSearch) {
  World world;
  world.show([&](Screen& screen) {
    lose(world, "Tivas");
    screen.search("5", false, false);
    screen.click("cmdCancelar");
    screen.click("cmdSelTodo");
    EXPECT_EQ(screen.text(8).Text(), "0") << "nothing failed: no rates are none";
    heal(world);
    screen.makeOut({3});
    EXPECT_EQ(screen.text(8).Text(), "10,2");
  });
}

TEST(UnknownRates, OfAnAgentAreNotThoseOfTheOneBefore) {
  World world;
  world.sql("INSERT INTO Cav VALUES (6, 'A', 19, 'x', 0, 0, 1, 6, 2, Null)");
  world.show([&](Screen& screen) {
    // The lookup of the second agent fails: his regime is read with the rates.
    screen.type(0, "5");
    lose(world, "Age_NOM");
    screen.search("6", false, false);
    EXPECT_EQ(screen.text(3).Text(), "10,00");
    EXPECT_EQ(screen.text(1).Text(), "");
    screen.click("cmdCancelar");
    heal(world);
    // A search that fails halfway leaves rows, and the rates of the agent before.
    screen.type(2, "24112026");
    lose(world, "Cav_id = 4");
    screen.search("5", false, false);
    heal(world);
    screen.click("cmdSelTodo");
    world.messages.clear();
    screen.click("cmdGrabar");
    EXPECT_THAT(world.messages.back(), HasSubstr("La búsqueda no ha terminado."));
  });
  EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 0U);
}

}  // namespace
}  // namespace korvantes::settlement
