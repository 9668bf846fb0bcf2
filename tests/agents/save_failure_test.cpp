#include <gmock/gmock.h>

#include "tests/agents/agents_world.h"
#include "tests/support/sweep.h"

namespace korvantes::agents {
namespace {

using support::Fault;
using testing::HasSubstr;
using testing::StartsWith;

/// Enters an agent and saves with every call failing in turn, then clicks again. However often it
/// takes, the agent is stored once.
void sweepSaves(const std::function<void(Screen&)>& enter, const std::vector<std::string>& wanted,
                const char* write) {
  support::sweep<World>(5, [&](World& world, Fault& fault) {
    world.show([&](Screen& screen) {
      enter(screen);
      const auto before = world.stored();
      auto entered = screen.contents();
      fault.during(*world.connection, [&] { screen.click("cmdSalvar"); });
      EXPECT_FALSE(world.connection->inTransaction());
      ASSERT_EQ(world.messages.size(), fault.met() ? 2U : 1U);
      if (!fault.met()) {
        const std::size_t last = fault.calls().at(3) == "CommitTrans" ? 3 : 4;
        EXPECT_EQ(fault.calls().at(0), "BeginTrans");
        EXPECT_THAT(fault.calls().at(last - 1), StartsWith(write));
        EXPECT_EQ(fault.calls().at(last), "CommitTrans");
        return;
      }
      EXPECT_THAT(world.messages[1], HasSubstr(Fault::kWords));
      // A picture that cannot be read has a message of its own, and the save is completed.
      if (!world.messages[1].starts_with("[16]")) return;
      EXPECT_THAT(world.messages[1], StartsWith("[16]  | "));
      if (world.stored() != before && entered[0].empty()) entered[0] = "9";
      EXPECT_EQ(screen.contents(), entered);

      screen.click("cmdSalvar");
      EXPECT_EQ(world.messages.size(), 3U);
      EXPECT_EQ(screen.contents().back(), "browsing");
    });
    EXPECT_EQ(world.stored(), wanted);
  });
}

TEST(AgentsSaveFailure, WhateverCallFailsTheAgentIsStoredOnceByTheNextClick) {
  auto wanted = World().stored();
  wanted[0] = "3|L'Hora|12345678Z||28001||28|34|||||7,5|2|";
  sweepSaves([](Screen& screen) { screen.type(1, "L'Hora"); }, wanted, "UPDATE AGE SET");

  wanted = World().stored();
  wanted.emplace_back("9|L'Hora|||28001||28|34|||||7,5|2|");
  sweepSaves(
      [](Screen& screen) {
        screen.click("cmdNuevo");
        screen.type(1, "L'Hora");
      },
      wanted, "INSERT INTO AGE");
}

}  // namespace
}  // namespace korvantes::agents
