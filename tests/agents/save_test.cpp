#include <gmock/gmock.h>

#include "tests/agents/agents_world.h"

namespace korvantes::agents {
namespace {

using testing::ElementsAre;

TEST(AgentsSave, WhatIsTypedIsStoredAndReadBackUnchanged) {
  std::string longest;
  while (longest.size() < 200) longest += "ñ";
  for (const std::string& name : std::vector<std::string>{"O'Brien \"el Chato\"; drop table Age --",
                                                          "Ana 👩‍💼 €", longest, ""}) {
    SCOPED_TRACE(name);
    World world;
    world.show([&](Screen& screen) {
      screen.click("cmdNuevo");
      screen.type(1, name);
      if (name == longest) screen.desktop.user().type("x");  // one character too many
      screen.type(2, "12345678a");
      screen.type(6, "+34 (91) 555-01.02");
      screen.type(4, "08001");
      screen.type(9, "99,999");
      screen.click("cmdSalvar");
      EXPECT_THAT(world.messages,
                  ElementsAre("[68] KORVANTES | Confirma la entrada de datos\r\n" + name));
    });
    EXPECT_EQ(world.stored().back(),
              "9|" + name + "|12345678Z||08001||28|34|+34 (91) 555-01.02||||99,999|2|");
    world.show([&](Screen& screen) {
      screen.type(0, "9");
      screen.press("Tab");
      EXPECT_EQ(screen.field(1).Text(), name);
      EXPECT_EQ(screen.field(9).Text(), "99,999");
    });
  }
}

TEST(AgentsSave, MovingThroughTheListSendsOneStatementAMove) {
  World world;
  world.show([&](Screen& screen) {
    screen.go("dboOper");
    for (const char* agent : {"5", "8"}) {
      world.connection->forgetCalls();
      screen.press("Abajo");
      EXPECT_THAT(world.connection->calls(),
                  ElementsAre(std::string("select AGE_IMG from AGE where AGE_ID= ") + agent));
    }
  });
}

}  // namespace
}  // namespace korvantes::agents
