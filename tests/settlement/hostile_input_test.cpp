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

void type(Screen& screen, int index, const char* text) {
  screen.type(index, text);
}
void paste(Screen& screen, int index, const char* text) {
  screen.paste(index, text);
}
void set(Screen& screen, int index, const char* text) {
  screen.text(index).Text = text;
}

/// Settles one note with this text in the fields that go into statements. A wrong code or date is
/// corrected afterwards, as a user would.
void settleWith(World& world, Screen& screen, void (*enter)(Screen&, int, const char*),
                const char* text) {
  for (int index : {0, 1, 4}) enter(screen, index, text);
  screen.click("cmbBuscarFacturas");
  screen.paste(0, "5");
  screen.paste(4, "");
  screen.search("5", false, false);
  for (int index : {2, 7}) enter(screen, index, text);
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
      settleWith(world, screen, paste, "24/11/2026");
      screen.search("5", true, false);
      screen.press("F1");
    });
    expected.merge(shapes(world));
  }
  ASSERT_GT(expected.size(), 10U);

  for (const char* text :
       {"'", "1,5", "5e0", "0", "5--", "5' OR '1'='1", "5;delete from Lca", "24/11/2026' OR 1=1 --",
        "ñandú", "№①", "\xC3", "a\nb\tc", "31/02/2026", "1'1'26", "999999999999999999999"}) {
    for (const auto enter : {type, paste, set}) {
      SCOPED_TRACE(std::string(text) + (enter == type ? " typed" : enter == set ? " set" : ""));
      World world;
      world.show([&](Screen& screen) { settleWith(world, screen, enter, text); });
      for (const std::string& shape : shapes(world)) EXPECT_TRUE(expected.contains(shape)) << shape;
      EXPECT_THAT(world.messages, testing::Each(testing::Not(testing::HasSubstr("Error"))));
    }
  }
}

}  // namespace
}  // namespace korvantes::settlement
