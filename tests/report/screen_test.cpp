#include <gmock/gmock.h>

#include "outside/office/objects.h"
#include "outside/screen/conversions.h"
#include "tests/report/search_screen.h"

namespace korvantes::report {
namespace {

using settlement::World;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Settlement 1 of agent 5 on 24/11/2026: note 1, with a commission of 1.93, and note 2, without
/// lines.
void settleTwoNotes(World& world) {
  world.sql("Update Fav set Fav_BIva1 = 20, Fav_Biva2 = 5, Fav_Biva3 = 0, Fav_CliNom = 'Bar Pepe'");
  world.settle({1, 2});
}

TEST(SearchScreen, TabVisitsTheFieldsInTheOrderOfWorkAndNothingHidden) {
  World world;
  show(world, [](SearchScreen& screen) {
    std::vector<std::string> visited;
    for (screen::Control* stop = screen.form.nextTabStop(nullptr);
         visited.empty() || stop->identity() != visited.front();
         stop = screen.form.nextTabStop(stop))
      visited.push_back(stop->identity());
    EXPECT_THAT(visited, ElementsAre("Text1(0)", "Text1(2)", "Text1(3)", "Text1(1)", "Option1(0)",
                                     "dbgLiqui", "cmdSalir", "cmdBuscar", "Check1(0)"));
    // The shape hides the label behind it and nothing else.
    EXPECT_EQ(screen.form.controls().at(0)->identity(), "Label1(1)");
    EXPECT_EQ(screen.form.controls().at(1)->identity(), "Shape1");
  });
}

TEST(SearchScreen, EachColumnOfAShapeStandsOverItsOwnValueInItsWidth) {
  struct Case {
    Forma forma;
    bool byDate;
    std::string columns, row;
  };
  const std::string agent = "Ana Gil | 24/11/2026 | ";
  const Case cases[] = {
      {Forma::Resumen, true,
       "Agente 6900, Fecha Liquidacion 1800 [], Base 1300, Iva 1300, Retencion 1300, Total 1300, ",
       agent + "1,93 | 0,41 | 0,37 | 1,97"},
      {Forma::Factura, true,
       "Agente 4000, F.Liquidac. 1100 [], Factura 1000, F.Factura 1100, Cliente 3800, Base 1100, "
       "Comision 900,   % 700, ",
       agent + "A/101 | 10/10/2026 | Bar Pepe | 25,00  | 1,93  | 7,72 "},
      {Forma::Factura, false,
       "Agente 4000, F.Liquidac. 1100 [], Cliente 3800, Factura 1000, F.Factura 1100, Base 1100, "
       "Comision 900,   % 700, ",
       agent + "Bar Pepe | A/101 | 10/10/2026 | 25,00  | 1,93  | 7,72 "},
      {Forma::Albaran, true,
       "Agente 2700, F.Liquidac. 1100 [], Factura 1000, F.Factura 1100, Cliente 2500, Albaran 900, "
       "Descripcion 2000, Importe 900, % 700, Comision 800, ",
       agent + "A/101   | 10/10/2026 | Bar Pepe | A/15    |  | 8,59  | 7,50 | 0,64 "},
      {Forma::Albaran, false,
       "Agente 2700, F.Liquidac. 1100 [], Cliente 2500, Factura 1000, F.Factura 1100, Albaran 900, "
       "Descripcion 2000, Importe 900, % 700, Comision 800, ",
       agent + "Bar Pepe | A/101   | 10/10/2026 | A/15    |  | 8,59  | 7,50 | 0,64 "},
  };
  World world;
  settleTwoNotes(world);
  show(world, [&](SearchScreen& screen) {
    for (const Case& each : cases) {
      screen.choose(each.forma, each.byDate);
      screen.search();
      const auto& grid = screen.control<screen::DataGrid>("dbgLiqui");
      std::string columns;
      for (std::size_t i = 0; i < grid.ColumnCount(); ++i) {
        const auto& column = grid.Columns(i);
        if (column.Visible)
          columns += column.Caption + " " + std::to_string(column.Width) +
                     (column.Button ? " [], " : ", ");
      }
      EXPECT_EQ(columns, each.columns);
      EXPECT_EQ(screen.rows().front(), each.row);
      EXPECT_EQ(screen.form.ActiveControl(), &grid);
      EXPECT_TRUE(screen.canExport());
      EXPECT_EQ(screen.canPrint(), each.forma == Forma::Factura);
    }
    // The invoice of the note without lines; its seven digits find no room in the five of the
    // server.
    screen.choose(Forma::Factura);
    screen.search();
    EXPECT_EQ(screen.rows().back(), agent + "/* | 11/10/2026 | Bar Pepe | 25,00  |  | ");
  });
}

TEST(SearchScreen, AFailureOfTheDatabaseIsToldAndTheNextSearchWorks) {
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
                    ElementsAre("[16]  Informe de liquidaciones a agentes(Versión 0.0.0) | sin "
                                "conexión"));
        EXPECT_FALSE(screen.canPrint() || screen.canExport());
        EXPECT_THAT(screen.rows(), IsEmpty());
      }
    }
    screen.search();
    EXPECT_TRUE(screen.canExport());
  });
}

/// What the screen asks of the outside objects, and the words they fail with, if any.
struct Journal {
  SearchScreen& screen;
  std::vector<std::string> lines;
  std::string failure;
};

struct Outside : office::Object {
  Journal& journal;
  explicit Outside(Journal& kept) : journal(kept) {}
  std::string print(const office::Argument& argument) const {
    if (std::holds_alternative<office::Omitted>(argument)) return "-";
    if (const auto* value = std::get_if<ado::Variant>(&argument)) return screen::CStr(*value);
    if (const auto* control = std::get_if<screen::Control*>(&argument))
      return (*control)->identity();
    if (const auto* rows = std::get_if<ado::Recordset>(&argument))
      return std::to_string(rows->Fields().Count()) + " fields";
    return "service";
  }
  void set(std::string_view property, const office::Argument& value) override {
    journal.lines.push_back(std::string(property) + " = " + print(value));
  }
  ado::Variant call(std::string_view method,
                    const std::vector<office::Argument>& arguments) override {
    std::string line(method);
    for (const office::Argument& argument : arguments) line += " | " + print(argument);
    line += journal.screen.form.Enabled() ? " enabled " : " disabled ";
    journal.lines.push_back(line + std::to_string(journal.screen.world.desktop.mousePointer()));
    if (!journal.failure.empty()) throw ado::Error(1, journal.failure);
    return {};
  }
};

TEST(SearchScreen, ReportAndSpreadsheetGetTheLastResultUnderTheDatesOnScreen) {
  World world;
  settleTwoNotes(world);
  show(world, [&](SearchScreen& screen) {
    Journal journal{screen, {}, {}};
    for (const char* name : {"marzenes.MZPrint", "BELTRIS.bSheets"})
      world.desktop.objects().add(name, [&] { return std::make_unique<Outside>(journal); });
    const auto after = [&](const char* button) {
      journal.lines.clear();
      screen.click(button);
      EXPECT_TRUE(screen.form.Enabled());
      EXPECT_EQ(world.desktop.mousePointer(), 0);
      return journal.lines;
    };
    const std::string overRows = "ShowReport | 12 |  | 0 | - | - | - | - | 19 fields disabled 13";

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
                  ElementsAre(limits + each.sentence, "MyBd = service", overRows));
    }
    EXPECT_THAT(after("cmdExcel"),
                ElementsAre("sTitulo = Informe de Liquidación de comisiones a Agentes",
                            "GridToExcel | 19 fields | dbgLiqui enabled 0"));

    // Ticked behind the search, which left the filter text.
    screen.choose(Forma::Albaran);
    EXPECT_THAT(after("cmdEmision").back(), "ShowReport | 12 |  | 0 disabled 13");
    screen.choose(Forma::Resumen);
    EXPECT_THAT(after("cmdEmision"), SizeIs(3));

    journal.failure = "sin papel";
    after("cmdEmision");
    after("cmdExcel");
    EXPECT_THAT(world.messages, SizeIs(2));
  });
}

}  // namespace
}  // namespace korvantes::report
