#include <array>
#include <gmock/gmock.h>
#include <regex>
#include <set>

#include "tests/settlement/settlement_world.h"
#include "tests/support/rows.h"

namespace korvantes::settlement {
namespace {

/// The statements without their values: quoted texts and numbers all look the same.
std::set<std::string> shapes(const World& world) {
  static const std::regex quoted("'([^']|'')*'"), number("-?[0-9]+([.][0-9]+)?");
  std::set<std::string> result;
  for (const std::string& call : world.connection->calls())
    result.insert(std::regex_replace(std::regex_replace(call, quoted, "'T'"), number, "9"));
  return result;
}

constexpr auto kHostile = std::to_array<const char*>(
    {"'", "1,5", "5e0", "0", "5--", "5' OR '1'='1", "5;delete from Lca", "24/11/2026' OR 1=1 --",
     "ñandú", "№①", "\xC3", "a\nb\tc", "31/02/2026", "1'1'26", "999999999999999999999"});

/// Settles one note with this text in the fields that go into statements. A wrong code or date is
/// corrected afterwards, as a user would.
void settleWith(World& world, Screen& screen, const std::function<void(int, const char*)>& enter,
                const char* text) {
  for (int index : {0, 1, 4}) enter(index, text);
  screen.click("cmbBuscarFacturas");
  screen.paste(0, "5");
  screen.paste(4, "");
  screen.search("5", false, false);
  for (int index : {2, 7}) enter(index, text);
  screen.tick(screen.rowOf(1));
  const std::string remarks = screen.text(7).Text();
  screen.click("cmdGrabar");
  screen.type(2, "24112026");
  screen.click("cmdGrabar");
  EXPECT_EQ(support::rowsOf(world.sql("select Lca_Obs from Lca")), std::vector{remarks});
}

TEST(SettlementHostileInput, NothingTypedPastedOrSetChangesTheShapeOfAStatement) {
  std::set<std::string> expected;
  for (const char* limit : {"", "10/10/2026"}) {
    World world;
    world.show([&](Screen& screen) {
      screen.click("Check1");
      screen.paste(4, limit);
      settleWith(
          world, screen, [&](int index, const char* text) { screen.paste(index, text); },
          "24/11/2026");
      screen.search("5", true, false);
      screen.press("F1");
    });
    expected.merge(shapes(world));
  }
  ASSERT_GT(expected.size(), 10U);

  const std::pair<const char*, void (Screen::*)(int, std::string_view) const> ways[] = {
      {"typed", &Screen::type}, {"pasted", &Screen::paste}, {"set", nullptr}};
  for (const char* text : kHostile) {
    for (const auto& [name, way] : ways) {
      SCOPED_TRACE(std::string(text) + " " + name);
      World world;
      world.show([&, way = way](Screen& screen) {
        const auto enter = [&](int index, const char* value) {
          if (way != nullptr)
            (screen.*way)(index, value);
          else
            screen.text(index).Text = value;
        };
        settleWith(world, screen, enter, text);
      });
      for (const std::string& shape : shapes(world)) EXPECT_TRUE(expected.contains(shape)) << shape;
      EXPECT_THAT(world.messages, testing::Each(testing::Not(testing::HasSubstr("Error"))));
    }
  }
}

}  // namespace
}  // namespace korvantes::settlement
