#include <gmock/gmock.h>
#include <set>

#include "tests/report/search_screen.h"
#include "tests/support/outside_journal.h"
#include "tests/tsql/cases.h"

namespace korvantes::report {
namespace {

using settlement::World;
using testing::Contains;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::SizeIs;

TEST(SearchStatements, AreTheTotalAndTheRowsWithTheFilterBeforeTheirOrder) {
  std::set<std::string> known;
  for (const tsql::Case& each : tsql::casesOf("accepted.sql")) known.insert(each.statement);
  const struct {
    std::string agent, from, to, where;
  } filters[] = {
      {"", "", "", ""},
      {"7", "", "", "WHERE Lca_IdAg = 7"},
      {"7", "01022024", "29022024",
       "WHERE Lca_IdAg = 7 AND Lca_Fecha BETWEEN '01/02/2024 ' AND '29/02/2024' "},
      {"", "01022024", "", "WHERE Lca_Fecha >= '01/02/2024' "},
      {"", "", "29022024", "WHERE Lca_Fecha <= '29/02/2024' "},
  };
  World world;
  show(world, [&](SearchScreen& screen) {
    for (const auto& [agent, from, to, where] : filters) {
      screen.filter(agent, from, to);
      for (const Shape& shape : kShapes) {
        screen.choose(shape);
        world.connection->forgetCalls();
        screen.search();
        const auto& calls = world.connection->calls();
        // Nothing is stored here, and only rows of delivery notes are merged.
        ASSERT_THAT(calls, SizeIs(shape.forma == Forma::Factura ? 3 : 2));
        EXPECT_EQ(calls[0], "SELECT SUM(Lca_Base) as SumaLiquidacion FROM Lca " + where);
        std::string unfiltered = calls[1];
        ASSERT_THAT(unfiltered,
                    HasSubstr(where + (shape.forma == Forma::Resumen ? "" : " ") + "ORDER BY "));
        unfiltered.erase(unfiltered.find(where), where.size());
        EXPECT_THAT(known, Contains(unfiltered));
        EXPECT_TRUE(calls.size() == 2 || calls[2] == "SELECT * FROM Lca WHERE Lca_Id=-1");
      }
    }
  });
}

// No field of the screen gives these: it says what the hidden ones would do.
TEST(SearchStatements, SeriesAndNumbersFilterByReceipt) {
  EXPECT_EQ(filtroDe({0, "", "", "A", "3", "x"}), " AND Rec_Serie ='A'  AND Rec_Numero >= 3");
  EXPECT_EQ(filtroDe({7, "", "", "", "3", "9"}),
            "WHERE Lca_IdAg = 7 AND Rec_Numero BETWEEN 3 AND 9");
  EXPECT_EQ(filtroDe({0, "", "", "", "0", "9"}), "WHERE Rec_Numero <= 9");
}

/// Settlement 1 of agent 5 on 24/11/2026.
void settleTwoNotes(World& world) {
  world.sql("Update Fav set Fav_BIva1 = 20, Fav_Biva2 = 5, Fav_Biva3 = 0, Fav_CliNom = 'Bar Pepe'");
  world.settle({1, 2});
}

TEST(SearchScreen, AFailureOfTheDatabaseIsReportedAndTheNextSearchWorks) {
  World world;
  settleTwoNotes(world);
  show(world, [&](SearchScreen& screen) {
    for (const Forma forma : {Forma::Resumen, Forma::Factura, Forma::Albaran}) {
      screen.choose({forma, true});
      for (const std::size_t call : {1U, 2U}) {
        screen.search();
        EXPECT_NE(screen.grid().RowCount(), 0U);
        world.messages.clear();
        world.connection->failAt(call, ado::Error(1, "sin conexión"));
        screen.search();
        EXPECT_THAT(world.messages,
                    ElementsAre("[16] " + screen.form.Caption() + " | sin conexión"));
        EXPECT_FALSE(screen.canPrint() || screen.canExport());
        EXPECT_EQ(screen.grid().RowCount(), 0U);
      }
    }
    screen.search();
    EXPECT_TRUE(screen.canExport());
  });
}

TEST(SearchScreen, ReportAndSpreadsheetGetTheLastResultUnderTheDatesOnScreen) {
  World world;
  settleTwoNotes(world);
  show(world, [&](SearchScreen& screen) {
    support::OutsideJournal journal;
    journal.offer(world.desktop);
    const auto after = [&](const char* button) {
      journal.lines.clear();
      screen.click(button);
      EXPECT_TRUE(screen.form.Enabled());
      EXPECT_EQ(world.desktop.mousePointer(), 0);
      return journal.lines;
    };
    screen.choose({Forma::Factura, true});
    screen.search();
    const std::string limits = "sAcotacion1 = Entre las fechas de liquidación ";
    const std::vector<std::vector<std::string>> dates = {
        {"", "", "Primera y Ultima"},
        {"", "31122026", "Primera y 31/12/2026"},
        {"01012026", "", "01/01/2026 y Ultima"},
        {"01012026", "31122026", "01/01/2026 y 31/12/2026"}};
    for (const auto& each : dates) {
      screen.filter("", each[0], each[1]);
      EXPECT_THAT(after("cmdEmision"),
                  ElementsAre(limits + each[2], "MyBd = service",
                              "ShowReport | 12 |  | 0 | - | - | - | - | 19 fields (disabled, "
                              "pointer 13)",
                              "released"));
    }
    EXPECT_THAT(after("cmdExcel"),
                ElementsAre("sTitulo = Informe de Liquidación de comisiones a Agentes",
                            "GridToExcel | 19 fields | dbgLiqui (enabled, pointer 0)", "released"));

    journal.failure = "sin papel";
    after("cmdEmision");
    after("cmdExcel");
    EXPECT_THAT(world.messages, SizeIs(2));
  });
}

}  // namespace
}  // namespace korvantes::report
