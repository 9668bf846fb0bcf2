#include <gmock/gmock.h>

#include "tests/report/search_screen.h"
#include "tests/support/outside_journal.h"

namespace korvantes::report {
namespace {

using settlement::World;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Settlement 1 of agent 5 on 24/11/2026: note 1, with a commission of 1.93, and note 2, without
/// lines.
void settleTwoNotes(World& world) {
  world.sql("Update Fav set Fav_BIva1 = 20, Fav_Biva2 = 5, Fav_Biva3 = 0, Fav_CliNom = 'Bar Pepe'");
  world.settle({1, 2});
}

TEST(SearchScreen, AFailureOfTheDatabaseIsReportedAndTheNextSearchWorks) {
  World world;
  settleTwoNotes(world);
  show(world, [&](SearchScreen& screen) {
    for (const Forma forma : {Forma::Resumen, Forma::Factura, Forma::Albaran}) {
      screen.choose(forma);
      for (const std::size_t call : {1U, 2U}) {
        screen.search();
        EXPECT_THAT(screen.rows(), testing::Not(IsEmpty()));
        world.messages.clear();
        world.connection->failAt(call, ado::Error(1, "sin conexión"));
        screen.search();
        EXPECT_THAT(world.messages,
                    ElementsAre("[16] " + screen.form.Caption() + " | sin conexión"));
        EXPECT_FALSE(screen.canPrint() || screen.canExport());
        EXPECT_THAT(screen.rows(), IsEmpty());
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
    const std::string overRows =
        "ShowReport | 12 |  | 0 | - | - | - | - | 19 fields (disabled, pointer 13)";

    screen.choose(Forma::Factura);
    screen.search();
    const std::string limits = "sAcotacion1 = Entre las fechas de liquidación ";
    struct Case {
      std::string from, to, sentence;
    };
    for (const Case& each : {Case{"", "", "Primera y Ultima"},
                             {"", "31122026", "Primera y 31/12/2026"},
                             {"01012026", "", "01/01/2026 y Ultima"},
                             {"01012026", "31122026", "01/01/2026 y 31/12/2026"}}) {
      screen.type(2, each.from);
      screen.type(3, each.to);
      EXPECT_THAT(after("cmdEmision"),
                  ElementsAre(limits + each.sentence, "MyBd = service", overRows, "released"));
    }
    EXPECT_THAT(after("cmdExcel"),
                ElementsAre("sTitulo = Informe de Liquidación de comisiones a Agentes",
                            "GridToExcel | 19 fields | dbgLiqui (enabled, pointer 0)", "released"));

    // Ticked after the search, which left the filter text.
    screen.choose(Forma::Albaran);
    EXPECT_THAT(after("cmdEmision"), Contains("ShowReport | 12 |  | 0 (disabled, pointer 13)"));
    screen.choose(Forma::Resumen);
    EXPECT_THAT(after("cmdEmision"), SizeIs(4));

    journal.failure = "sin papel";
    after("cmdEmision");
    after("cmdExcel");
    EXPECT_THAT(world.messages, SizeIs(2));
  });
}

}  // namespace
}  // namespace korvantes::report
