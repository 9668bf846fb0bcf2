#include <gmock/gmock.h>

#include "tests/agents/agents_world.h"

namespace korvantes::agents {
namespace {

using support::FaultyConnection;
using support::kMoments;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kWords = "disco lleno";
/// Enters an agent, fails the nth call of its save, and clicks again; for every n until no failure
/// is met. However often it takes, the agent is stored once.
void sweep(const std::function<void(Screen&)>& enter, const std::vector<std::string>& wanted) {
  for (const auto when : kMoments) {
    bool reached = true;
    for (std::size_t n = 1; reached; ++n) {
      SCOPED_TRACE("call " + std::to_string(n));
      ASSERT_LT(n, 30U);
      World world;
      world.show([&](Screen& screen) {
        enter(screen);
        const auto before = world.stored();
        auto entered = screen.contents();
        world.connection->failAt(n, ado::Error(13, kWords), when);
        screen.click("cmdSalvar");
        reached = world.connection->failed();
        EXPECT_FALSE(world.connection->inTransaction());
        const bool stored = world.stored() != before;
        if (!reached) {
          EXPECT_GT(n, 5U);
          EXPECT_EQ(world.messages.size(), 1U);
          return;
        }
        ASSERT_EQ(world.messages.size(), 2U);
        EXPECT_THAT(world.messages[1], HasSubstr(kWords));
        // A picture that cannot be read is told by itself, and the save goes on to its end.
        if (!world.messages[1].starts_with("[16]")) return;
        EXPECT_THAT(world.messages[1], StartsWith("[16]  | "));
        auto shown = screen.contents();
        if (stored && entered[0].empty()) entered[0] = "9";
        EXPECT_EQ(shown, entered);

        screen.click("cmdSalvar");
        EXPECT_EQ(world.messages.size(), 3U);
        EXPECT_EQ(screen.contents().back(), "browsing");
      });
      EXPECT_EQ(world.stored(), wanted);
    }
  }
}

TEST(AgentsSaveFailure, WhateverCallFailsANewAgentIsStoredOnce) {
  auto wanted = World().stored();
  wanted.emplace_back("9|L'Hora|||28001||28|34|||||7,5|2|");
  sweep(
      [](Screen& screen) {
        screen.click("cmdNuevo");
        screen.type(1, "L'Hora");
      },
      wanted);
}

TEST(AgentsSaveFailure, WhateverCallFailsAChangedAgentIsStoredByTheNextClick) {
  auto wanted = World().stored();
  wanted[0] = "3|L'Hora|12345678Z||28001||28|34|||||7,5|2|";
  sweep(
      [](Screen& screen) {
        screen.row(0);
        screen.type(1, "L'Hora");
      },
      wanted);
}

}  // namespace
}  // namespace korvantes::agents
