#include <gmock/gmock.h>
#include <map>

#include "office/sheet/exact_sum.h"
#include "tests/sheet/sheet_world.h"

namespace korvantes::office {

namespace {

using ado::Date;
using ado::Decimal;
using ado::FieldType;
using ado::Variant;
using ::testing::HasSubstr;

ado::Recordset result(std::vector<ado::FieldDefinition> fields, std::vector<Variant> cells) {
  return {std::make_shared<const std::vector<ado::FieldDefinition>>(std::move(fields)),
          std::move(cells)};
}

ado::Recordset settlements() {
  std::vector<Variant> cells{
      7,         "Peña", Date{2026, 6, 30}, Decimal::money(1234567891), 0.1, Decimal(350, 2),
      "A/12   ", true,   ado::Bytes(3)};
  cells.insert(cells.end(),
               {8, "Núñez", Date{1899, 1, 2}, Decimal::money(-1000), 0.2, {}, {}, false, {}});
  cells.insert(cells.end(), {9, {}, {}, {}, {}, Decimal(0, 2), "A/13", {}, {}});
  return result({{"Lca_Id", FieldType::Integer},
                 {"Age_Nom", FieldType::VarChar, 50},
                 {"Lca_Fecha", FieldType::Date},
                 {"Lca_Base", FieldType::Currency, 0, 4},
                 {"Comision", FieldType::Double},
                 {"Porcentaje", FieldType::Numeric, 0, 2},
                 {"Albaran", FieldType::VarChar},
                 {"Cobrada", FieldType::Boolean},
                 {"Foto", FieldType::LongVarBinary}},
                std::move(cells));
}

TEST(GridToExcel, WritesTheVisibleColumnsInTheirFormats) {
  SheetWorld world;
  ado::Recordset rows = settlements();
  world.grid.DataSource(rows);
  world.grid.Columns(0).Visible = false;
  const char* const captions[] = {"", "Agente", "Fecha", "Base", "Comision", "  %", "Albaran"};
  for (std::size_t i = 1; i <= 6; ++i) world.grid.Columns(i).Caption = captions[i];
  world.grid.Columns(1).Width = 6900;
  world.grid.Columns(3).NumberFormat = "##,##0.00 ";
  world.grid.Columns(4).NumberFormat = "0.0# %";
  world.grid.Columns(5).NumberFormat = "#0.00";
  world.grid.Columns(5).TextAlignment = screen::Alignment::Center;
  world.grid.Columns(6).NumberFormat = "#,##0.00 ";
  rows.MoveLast();
  int moves = 0;
  rows.onMoveComplete([&] { ++moves; });

  world.sheets.set("sTitulo", Variant("Informe"));
  world.exportGrid(rows);

  EXPECT_EQ(rows.position(), 2U);
  EXPECT_EQ(moves, 0);
  EXPECT_EQ(world.suggested, "Informe.xlsx");
  EXPECT_EQ(world.read("--columnas"),
            R"(Listado | Informe | KORVANTES
A4 | A3:H6 | landscape | 9 | None | 0 | $1:$3
66 left | 14 left | 14 right | 14 right | 14 center | 14 left | 14 left | 14 None
"Informe" |  |  |  |  |  |  | 
 |  |  |  |  |  |  | 
"Agente" | "Fecha" | "Base" | "Comision" | "  %" | "Albaran" | "Cobrada" | "Foto"
"Peña" | 30/06/2026 [dd/mm/yyyy] | 123456.7891 [#,##0.00" "] | 0.1 [0.0#" %"] | 3.5 [0.00] | "A/12" | True | 
"Núñez" | "02/01/1899" | -0.1 [#,##0.00" "] | 0.2 [0.0#" %"] |  |  | False | 
 |  |  |  | 0 [0.00] | "A/13" |  | 
 |  |  |  |  |  |  | 
"Total" |  | =SUBTOTAL(109,C4:C6) -> 123456.6891 [#,##0.00" "] | =SUBTOTAL(109,D4:D6) -> 0.3 [0.0#" %"] |  |  |  | 
)");
}

TEST(GridToExcel, TakesTheFieldsOfOtherRowsThanTheGridsAndAddsNoAmountThatMayRepeat) {
  SheetWorld world;
  for (const bool bound : {false, true}) {
    if (bound) world.grid.DataSource(result({{"Otro", FieldType::Integer}}, {1}));
    world.exportGrid(settlements());
    EXPECT_THAT(world.read(), HasSubstr("\"Lca_Id\" | \"Age_Nom\" | \"Lca_Fecha\""));
  }
  const ado::Recordset rows = result({{"Fav_Id", FieldType::Integer},
                                      {"Lca_Id", FieldType::Integer},
                                      {"Fav_Bruto", FieldType::Double},
                                      {"Comision", FieldType::Double}},
                                     {1, 5, 100.0, 10.0, 1, 6, 100.0, 20.0});
  world.grid.DataSource(rows);
  for (const std::size_t amount : {2U, 3U}) world.grid.Columns(amount).NumberFormat = "#,##0.00";
  world.exportGrid(rows);
  EXPECT_THAT(world.read(), HasSubstr("\"Total\" |  |  | =SUBTOTAL(109,D4:D5) -> 30 [#,##0.00]\n"));
}

TEST(GridToExcel, RefusesMoreRowsThanASheetHasBeforeItAsksForAFile) {
  SheetWorld world;
  const ado::Recordset rows =
      result({{"n", FieldType::Integer}}, std::vector<Variant>(1'048'571, Variant(1)));
  EXPECT_THAT(support::failureOf([&] { world.exportGrid(rows); }),
              HasSubstr("admite 1048570 filas y el listado tiene 1048571"));
  EXPECT_EQ(world.suggested, "");
}

TEST(Spreadsheet, RefusesOtherMembersAndArgumentsInWords) {
  SheetWorld world;
  ado::Recordset closed;
  const Argument list = &world.list, grid = &world.grid, rows = settlements();
  const struct {
    const char* method;
    std::vector<Argument> arguments;
    const char* words;
  } calls[] = {
      {"ListToWord", {list}, "no tiene el miembro «ListToWord»"},
      {"ListToExcel", {grid}, "espera una lista"},
      {"GridToExcel", {grid, rows}, "espera un conjunto de registros"},
      {"GridToExcel", {rows, list}, "espera una cuadrícula"},
      {"GridToExcel", {Argument(closed), grid}, "está cerrada"},
  };
  for (const auto& each : calls)
    EXPECT_THAT(support::failureOf([&] { world.sheets.call(each.method, each.arguments); }),
                HasSubstr(each.words));
  EXPECT_THROW(world.sheets.set("sTitle", Variant("x")), ado::Error);
  EXPECT_EQ(world.suggested, "");
}

TEST(ExactSum, AddsDecimalsNotBinaryFractions) {
  ExactSum cents;
  for (int i = 0; i < 1'000'000; ++i) cents.add(0.01);
  cents.add(Decimal(-1, 18));
  cents.add(Decimal(1, 18));
  EXPECT_EQ(cents.value(), 10000.0);
  ExactSum large;
  for (const double each : {1e14, 0.05, -1e14, 1e300, -1e300}) large.add(each);
  EXPECT_EQ(large.value(), 0.05);
}

TEST(ListToExcel, WritesWhatTheScreenShows) {
  SheetWorld world;
  world.addRow({"000013", "01/07/2026", "17", "x", "-0,10", "12,50", ""});
  world.addRow({"A/000012", "2026-06-30", "0042", "x", "1.234,50", "3,5", "43,21"}, true);
  world.list.SortOrder = static_cast<int>(screen::ListView::Order::Descending);
  world.list.Sorted = true;
  world.exportList();

  EXPECT_EQ(world.suggested, "Albaranes de la liquidación.xlsx");
  EXPECT_EQ(world.rowsWritten, 2U);
  EXPECT_EQ(world.read("--columnas"),
            R"(Listado | Albaranes de la liquidación | KORVANTES
A4 | A3:G5 | landscape | 9 | None | 0 | $1:$3
12 center | 14 left | 14 left | 38 right | 16 right | 15 right | 17 right
"Albaranes de la liquidación" |  |  |  |  |  | 
 |  |  |  |  |  | 
"Marcado" | "Factura" | "Fecha" | "Cliente" | "Importe" | "% Comision" | "Imp.Comision"
"Sí" | "A/000012" | 30/06/2026 [dd/mm/yyyy] | "0042" | 1234.5 [#,##0.00] | 3.5 [#,##0.00] | 43.21 [#,##0.00]
"No" | "000013" | 01/07/2026 [dd/mm/yyyy] | "17" | -0.1 [#,##0.00] | 12.5 [#,##0.00] | 
 |  |  |  |  |  | 
"Total" |  |  |  | =SUBTOTAL(109,E4:E5) -> 1234.4 [#,##0.00] |  | =SUBTOTAL(109,G4:G5) -> 43.21 [#,##0.00]
"Total marcados" |  |  |  | =SUMIF(A4:A5,"Sí",E4:E5) -> 1234.5 [#,##0.00] |  | =SUMIF(A4:A5,"Sí",G4:G5) -> 43.21 [#,##0.00]
)");
}

TEST(ListToExcel, KeepsColumnsThatAreNotWhollyNumbersOrDatesAsTexts) {
  SheetWorld world;
  world.addRow({"1", "2026-06-30", "1234567890123456", "", "10,00", "1E5", "1.234"});
  world.addRow({"2", "2026-02-30", "2", "", "diez", "2", "7"});
  world.exportList();
  EXPECT_TRUE(world.read().ends_with(
      R"("No" | "1" | "2026-06-30" | "1234567890123456" | "10,00" | "1E5" | 1234 [0]
"No" | "2" | "2026-02-30" | "2" | "diez" | "2" | 7 [0]
)")) << world.read();
}

TEST(ListToExcel, KeepsHostileTextsAsTexts) {
  std::string longText;
  for (int i = 0; i < 20000; ++i) longText += "€😀";
  /// Texts, and what the cell holds.
  std::map<std::string, std::string> texts = {
      {"  blancos  ", "  blancos"},
      {"cp\x80malo", "cp\uFFFDmalo"},
      {"ñ\uFFFF", "ñ\uFFFD"},
      {longText, longText.substr(0, 10922 * 7) + "…"},
      {"dos\nlíneas\ty tabulador", "dos\\nlíneas\\ty tabulador"},
      {"<a&b> \"'", "<a&b> \\\"'"},
  };
  for (const char* same : {"=1+1", "+34 600", "-x", "@SUM(A1)"}) texts.emplace(same, same);
  SheetWorld world;
  for (const auto& [text, kept] : texts) world.addRow({text, "2026-06-30"});
  world.sheets.set("STITULO", ado::Variant("Ventas: 50% / año"));
  world.exportList();
  EXPECT_EQ(world.suggested, "Ventas- 50% - año.xlsx");
  const std::string read = world.read();
  EXPECT_THAT(read, HasSubstr("\n\"Ventas: 50% / año\" |"));
  for (const auto& [text, kept] : texts)
    EXPECT_NE(read.find("| \"" + kept + "\" | 30/06/2026"), read.npos) << text.substr(0, 80);
}

}  // namespace

}  // namespace korvantes::office
