#include <gmock/gmock.h>

#include "engines/sqlite/sqlite_connection.h"
#include "tests/agents/agents_world.h"

namespace korvantes::agents {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kOtherAgent =
    "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_COM) VALUES (9, 'De otro', 1)";

TEST(AgentsTwoUsers, WhatTheTableHoldsDecidesBetweenChangingAndAdding) {
  World world;
  world.show([&](Screen& screen) {
    // Deleted by the other user: what is on screen is stored as a new agent.
    screen.row(0);
    screen.type(1, "Ana Gil Paz");
    world.sql("delete from Age where AGE_ID = 3");
    world.sql(kOtherAgent);
    screen.click("cmdSalvar");
    EXPECT_EQ(screen.form.nIdAgente, 10);
    EXPECT_EQ(screen.field(1).Text(), "Ana Gil Paz");
    EXPECT_EQ(screen.rows(), 4U);
    // Changed by the other user: what is on screen is written over it.
    world.sql("update Age set AGE_NOM = 'Otra' where AGE_ID = 10");
    screen.type(9, "5");
    screen.click("cmdSalvar");
    EXPECT_THAT(world.stored().back(), StartsWith("10|Ana Gil Paz|"));
    // Added by the other user after the list was read: not on it until the next save.
    world.sql("INSERT INTO Age (AGE_ID, AGE_NOM) VALUES (11, 'Aquí')");
    world.messages.clear();
    world.chooseFromLists(1);
    screen.press("F1");
    EXPECT_THAT(world.messages, ElementsAre(HasSubstr("El agente 11 se ha añadido después")));
    EXPECT_EQ(screen.form.nIdAgente, 10);
  });
}

TEST(AgentsTwoUsers, AnAgentDeletedBeforeTheListIsReadIsNotTheCurrentOne) {
  for (const bool others : {true, false}) {
    World world;
    world.show([&](Screen& screen) {
      screen.row(0);
      world.connection->onCall = [&](std::string_view statement) {
        if (!statement.starts_with("Select AGE_ID,AGE_NOM")) return;
        world.sql(others ? "delete from Age where AGE_ID = 3" : "delete from Age");
      };
      screen.click("cmdSalvar");
      EXPECT_EQ(screen.form.nIdAgente, others ? 8 : 0);
      EXPECT_EQ(screen.control("Frame2").Enabled(), others);
      if (others) {
        EXPECT_THAT(world.messages.back(), HasSubstr("El agente 3 ya no existe"));
      }
      world.connection->onCall = nullptr;
      screen.type(0, "3");
      world.messages.clear();
      screen.press("Tab");
      EXPECT_THAT(world.messages, ElementsAre("[0] KORVANTES | Codigo de agente no existe"));
    });
  }
}

TEST(AgentsTwoUsers, TheSecondOfTwoWhoAddAtOnceGetsANumberOfItsOwnAtTheNextClick) {
  World world;
  world.show([&](Screen& screen) {
    screen.click("cmdNuevo");
    screen.type(1, "Mío");
    const auto entered = screen.contents();

    // The other user has locked the database.
    sqlite::SqliteConnection other(world.path(), sqlite::OpenOptions{});
    other.BeginTrans();
    other.Execute("select isnull(max(age_id),0) +1 from age");
    screen.click("cmdSalvar");
    EXPECT_THAT(world.messages.back(), StartsWith("[16]  | "));
    EXPECT_EQ(screen.contents(), entered);
    other.RollbackTrans();

    // The number is already used when the row arrives, as on a server that only locks rows.
    world.connection->onCall = [&](std::string_view statement) {
      if (statement.starts_with("INSERT INTO AGE")) world.sql(kOtherAgent);
    };
    screen.click("cmdSalvar");
    EXPECT_THAT(world.messages.back(), StartsWith("[16]  | Error Añadiendo Agente\r\n"));
    EXPECT_EQ(screen.contents(), entered);
    world.connection->onCall = nullptr;
    world.sql(kOtherAgent);
    screen.click("cmdSalvar");
    EXPECT_THAT(world.stored().back(), StartsWith("10|Mío|"));
    EXPECT_EQ(screen.form.nIdAgente, 10);
  });
}

}  // namespace
}  // namespace korvantes::agents
