#include <gmock/gmock.h>
#include <map>

#include "tests/sheet/sheet_world.h"

namespace korvantes::office {

namespace {

using ::testing::HasSubstr;

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
