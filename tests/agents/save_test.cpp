#include <gmock/gmock.h>

#include "tests/agents/agents_world.h"

namespace korvantes::agents {
namespace {

using testing::ElementsAre;

std::string repeated(std::string_view text, int times) {
  std::string result;
  while (times-- > 0) result += text;
  return result;
}

TEST(AgentsSave, WhatIsTypedIsStoredAndReadBackUnchanged) {
  const std::string names[] = {
      "O'Brien \"el Chato\"; drop table Age --",
      "Ñandú Íñiguez Güell",
      "Ana 👩‍💼 €",
      repeated("ñ", 100),
      "",
  };
  for (const std::string& name : names) {
    SCOPED_TRACE(name);
    World world;
    world.show([&](Screen& screen) {
      screen.click("cmdNuevo");
      screen.type(1, name);
      if (name.size() == 200) screen.desktop.user().type("x");  // one character too many
      screen.type(2, "12345678a");
      screen.type(6, "+34 (91) 555-01.02");
      screen.type(8, "Ana+ventas@Ejemplo.ES");
      screen.type(4, "08001");
      screen.type(9, "99,999");
      screen.click("cmdSalvar");
      EXPECT_THAT(world.messages,
                  ElementsAre("[68] KORVANTES | Confirma la entrada de datos\r\n" + name));
    });
    EXPECT_THAT(
        world.stored().back(),
        "9|" + name +
            "|12345678Z||08001||28|34|+34 (91) 555-01.02||Ana+ventas@Ejemplo.ES||99,999|2|");
    world.show([&](Screen& screen) {
      screen.type(0, "9");
      screen.press("Tab");
      EXPECT_EQ(screen.field(1).Text(), name);
      EXPECT_EQ(screen.field(9).Text(), "99,999");
    });
  }
}

TEST(AgentsSave, ASaveSendsTheStatementsInOrderWithinOneTransaction) {
  World world;
  world.show([&](Screen& screen) {
    screen.row(0);
    world.connection->forgetCalls();
    screen.click("cmdSalvar");
    const auto& calls = world.connection->calls();
    ASSERT_GT(calls.size(), 4U);
    EXPECT_EQ(calls[0], "BeginTrans");
    EXPECT_EQ(calls[1], "Select AGE_ID from AGE where AGE_ID=3");
    EXPECT_THAT(calls[2], testing::MatchesRegex("UPDATE AGE SET AGE_NOM = .* where AGE_ID = 3"));
    EXPECT_EQ(calls[3], "CommitTrans");
    EXPECT_EQ(screen.form.ActiveControl(), &screen.field(0));
  });
}

TEST(AgentsSave, ManyAgentsAreMovedThroughWithOneStatementAMove) {
  constexpr std::size_t kAgents = 10'000;
  World world;
  world.sql("delete from Age");
  const auto base = world.connection;
  base->BeginTrans();
  for (std::size_t id = 1; id <= kAgents; ++id)
    world.sql("INSERT INTO Age (AGE_ID, AGE_NOM) VALUES (" + std::to_string(id) + ", 'x')");
  base->CommitTrans();
  world.show([&](Screen& screen) {
    screen.go("dboOper");
    base->forgetCalls();
    for (std::size_t move = 1; move < kAgents; ++move) screen.press("Abajo");
    EXPECT_EQ(screen.form.nIdAgente, static_cast<int>(kAgents));
    EXPECT_EQ(base->calls().size(), kAgents - 1);
    EXPECT_EQ(base->calls().back(), "select AGE_IMG from AGE where AGE_ID= 10000");
  });
}

}  // namespace
}  // namespace korvantes::agents
