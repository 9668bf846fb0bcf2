#include <gmock/gmock.h>

#include "tests/agents/agents_world.h"

namespace korvantes::agents {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(AgentsOpenCases, StoredValuesShowWholeNullsEmptyAndWithoutPercentageNothingIsSaved) {
  World world;
  world.show([&](Screen& screen) {
    // Also in the field with the focus, which takes digits only from the keyboard.
    world.chooseFromLists(2);
    screen.go("txtFields(4)");
    screen.press("F1");
    EXPECT_EQ(screen.field(4).Text(), "SW1A 2AA");
    screen.row(2);
    for (int index = 2; index <= 10; ++index) EXPECT_EQ(screen.field(index).Text(), "") << index;
    EXPECT_EQ(screen.text("cboProvincias"), "01 - Araba");
    EXPECT_EQ(screen.text("cboPais"), "001 - País");
    EXPECT_EQ(screen.text("cboRegFiscal"), "01 - General");
    screen.click("cmdSalvar");
    EXPECT_THAT(world.messages, ElementsAre("[16] Agentes | Error, Debe especificar un valor en % "
                                            "Comisión"));
  });
}

TEST(AgentsOpenCases, ASaveSaysWhichCodesItReplacesAndNullIsOneOfThem) {
  const std::pair<const char*, const char*> cases[] = {
      {"AGE_REG = Null",
       "[48] Agentes | El agente tiene códigos sin valor. Si confirma la entrada:"
       "\r\nRégimen fiscal (sin valor) pasará a ser «01 - General»"},
      {"AGE_PRO = ' ', AGE_PAI = 999",
       "[48] Agentes | El agente tiene códigos que no están en las listas. Si confirma la entrada:"
       "\r\nProvincia (sin valor) pasará a ser «01 - Araba»"
       "\r\nPaís 999 pasará a ser «001 - País»"},
  };
  for (const auto& [codes, message] : cases) {
    World world;
    world.sql(std::string("update Age set ") + codes + " where AGE_ID = 3");
    world.show([&](Screen& screen) {
      screen.row(0);
      screen.click("cmdSalvar");
      EXPECT_EQ(world.messages.at(0), message);
      // A new agent has no codes to lose.
      world.messages.clear();
      screen.row(2);
      screen.click("cmdNuevo");
      screen.type(9, "1");
      screen.click("cmdSalvar");
      EXPECT_THAT(world.messages, ElementsAre(HasSubstr("Confirma la entrada")));
    });
  }
}

TEST(AgentsOpenCases, WithFewerThanTenCountriesTheFirstShows) {
  World world;
  world.sqlAll(std::vector{"delete from Vespara.dbo.PAIS where PAIS_COD > 33", "delete from Age"});
  world.show([&](Screen& screen) {
    EXPECT_EQ(screen.text("cboPais"), "001 - País");
    EXPECT_FALSE(screen.control("Frame2").Enabled());
    EXPECT_EQ(screen.form.nIdAgente, 0);
  });
  EXPECT_THAT(world.messages, ElementsAre());
}

TEST(AgentsOpenCases, WithoutTheSharedDatabaseAgentsAreSeenAndNothingIsWrittenOverThem) {
  for (const char* table : {"vespara.dbo.PROV", "vespara.dbo.PAIS", "Vespara.dbo.situaciones"}) {
    World world;
    const auto before = world.stored();
    world.connection->onCall = [&](std::string_view statement) {
      if (statement.find(table) != std::string_view::npos) throw ado::Error(14, "sin conexión");
    };
    world.show([&](Screen& screen) {
      EXPECT_THAT(world.messages, ElementsAre(HasSubstr("sin conexión")));
      screen.row(1);
      EXPECT_EQ(screen.field(1).Text(), "Luc Roy");
      screen.typeRegime("02");
      screen.row(0);
      screen.click("cmdSalvar");
      EXPECT_THAT(world.messages.back(), testing::StartsWith("[16]  | No hay ningún valor en la "));
    });
    EXPECT_EQ(world.stored(), before) << table;
  }
}

TEST(AgentsOpenCases, ATypedRegimeIsTakenByItsFirstTwoCharacters) {
  const struct {
    const char *typed, *stored, *message;
  } cases[] = {
      {"7", "7", ""},
      {"01 General", "1", ""},
      {"-1", "2", "Régimen fiscal: «-1» no empieza por un código."},
      {"", "2", "No hay ningún valor en la lista «Régimen fiscal»"},
  };
  for (const auto& [typed, stored, message] : cases) {
    World world;
    world.show([&, typed = typed, message = message](Screen& screen) {
      screen.row(0);
      screen.typeRegime(typed);
      screen.click("cmdSalvar");
      EXPECT_THAT(world.messages.back(), HasSubstr(message));
    });
    EXPECT_EQ(world.count(std::string("Age where AGE_ID = 3 and AGE_REG = ") + stored), 1U);
  }
}

}  // namespace
}  // namespace korvantes::agents
