#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class TextTest : public EngineTest {
 protected:
  void agent(int id, const std::string& name) {
    run("insert into Age (AGE_ID, AGE_NOM) values (" + std::to_string(id) + ", '" + name + "')");
  }
};

TEST_P(TextTest, ComparisonIgnoresCaseAndBlanksBehindButNotLetters) {
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

TEST_P(TextTest, OrderIsASpanishReaders) {
  const std::vector<std::string> order{"Álamo", "alamo b", "ana",  "Cañas",
                                       "Caobo", "ñandú",   "Ópalo"};
  for (std::size_t i = order.size(); i > 0; --i) agent(static_cast<int>(i), order[i - 1]);
  EXPECT_EQ(rows("select AGE_NOM from Age order by AGE_NOM"), order);
  EXPECT_EQ(cell("select max(AGE_NOM) from Age"), "Ópalo");
}

TEST_P(TextTest, NumbersCastToTextsArePaddedAndNeverCut) {
  const struct {
    const char* number;
    const char* fixed;
    const char* varying;
  } cases[] = {{"12", "A/12   ", "A/12"},
               {"12345", "A/12345", "A/12345"},
               {"123456", "A/*    ", "A/*"},
               {"-1234", "A/-1234", "A/-1234"},
               {"NULL", "NULL", "NULL"}};
  for (const auto& [number, fixed, varying] : cases) {
    run("delete from Cav");
    run("insert into Cav (Cav_Id, Cav_Serie, Cav_Numero) values (1, 'A', " + std::string(number) +
        ")");
    EXPECT_EQ(cell("select (Cav_Serie + '/' + CAST(Cav_Numero AS char(5))) from Cav"), fixed);
    EXPECT_EQ(cell("select (Cav_Serie + '/' + cast(Cav_Numero as varchar(5))) from Cav"), varying);
  }
  run("update Cav set Cav_Serie = Null, Cav_Numero = 5");
  EXPECT_EQ(cell("select (Cav_Serie + '/' + cast(Cav_Numero as varchar(5))) from Cav"), "NULL");
}

TEST_P(TextTest, WhateverIsStoredComesBack) {
  for (const std::string text : {"", "á€😀 '' ; -- /* ", "  dos  ", "a\tb\nc", "' OR 1=1"}) {
    std::string doubled;
    for (const char c : text) doubled += c == '\'' ? "''" : std::string(1, c);
    run("delete from Age");
    agent(1, doubled);
    EXPECT_EQ(cell("select AGE_NOM from Age"), text);
  }
}

TEST_P(TextTest, ATextThatIsTooLongIsRefusedByCharacters) {
  const std::string eight = "ñandúes8";
  run("insert into Age (AGE_ID, AGE_CP) values (1, '" + eight + "')");
  failure("update Age set AGE_CP = '" + eight + "x'");
  EXPECT_EQ(cell("select AGE_CP from Age"), eight);
}

KORVANTES_ON_EACH_ENGINE(TextTest);

}  // namespace
}  // namespace korvantes::testing_engines
