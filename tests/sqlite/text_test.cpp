#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class TextTest : public EngineTest {
 protected:
  void agent(int id, const std::string& name) {
    run("insert into Age (AGE_ID, AGE_NOM) values (" + std::to_string(id) + ", '" + name + "')");
  }
};

TEST_F(TextTest, ComparisonIgnoresCaseAndBlanksBehindButNotLetters) {
  agent(1, "Muñoz");
  agent(2, "munoz ");
  agent(3, "MUÑOZ  ");
  agent(4, "O''Neill");
  EXPECT_EQ(rows("select AGE_ID from Age where AGE_NOM = 'muñoz' order by AGE_ID"),
            (std::vector<std::string>{"1", "3"}));
  EXPECT_EQ(rows("select AGE_ID from Age where AGE_NOM = 'MUNOZ'"), std::vector<std::string>{"2"});
  EXPECT_EQ(rows("select AGE_NOM from Age where AGE_NOM = 'o''NEILL'"),
            std::vector<std::string>{"O'Neill"});
  EXPECT_EQ(rows("select AGE_ID from Age where AGE_NOM > 'munozz' and AGE_NOM < 'n'"
                 " order by AGE_ID"),
            (std::vector<std::string>{"1", "3"}));
}

TEST_F(TextTest, OrderIsASpanishReaders) {
  const std::vector<std::string> order{"Álamo", "alamo b", "ana",  "Cañas",
                                       "Caobo", "ñandú",   "Ópalo"};
  for (std::size_t i = order.size(); i > 0; --i) agent(static_cast<int>(i), order[i - 1]);
  EXPECT_EQ(rows("select AGE_NOM from Age order by AGE_NOM"), order);
  EXPECT_EQ(cell("select max(AGE_NOM) from Age"), "Ópalo");
}

TEST_F(TextTest, ATextThatIsTooLongIsRefusedByCharacters) {
  const std::string eight = "ñandúes8";
  run("insert into Age (AGE_ID, AGE_CP) values (1, '" + eight + "')");
  failure("update Age set AGE_CP = '" + eight + "x'");
  EXPECT_EQ(cell("select AGE_CP from Age"), eight);
}

}  // namespace
}  // namespace korvantes::testing_engines
