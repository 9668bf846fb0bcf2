#include <gmock/gmock.h>

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
  const std::string read = world.read();
  EXPECT_THAT(
      read,
      HasSubstr(R"("No" | "1" | "2026-06-30" | "1234567890123456" | "10,00" | "1E5" | 1234 [0])"));
  EXPECT_THAT(read, Not(HasSubstr("Total")));
}

TEST(ListToExcel, WritesTitleAndHeadingOfAnEmptyList) {
  SheetWorld world;
  world.sheets.set("STITULO", ado::Variant("Ventas: 50% / año"));
  world.exportList();
  EXPECT_EQ(world.suggested, "Ventas- 50% - año.xlsx");
  EXPECT_EQ(world.rowsWritten, 0U);
  const std::string read = world.read();
  EXPECT_THAT(read, HasSubstr("\"Ventas: 50% / año\""));
  EXPECT_TRUE(read.ends_with("\"Imp.Comision\"\n")) << read;
}

/// Texts, and what the cell holds where it is not the same.
TEST(ListToExcel, KeepsHostileTextsAsTexts) {
  std::string longText;
  for (int i = 0; i < 20000; ++i) longText += "€😀";
  std::string kept(longText.substr(0, 10922 * 7));
  const std::vector<std::pair<std::string, std::string>> texts = {
      {"=1+1", ""},
      {"+34 600", ""},
      {"-x", ""},
      {"@SUM(A1)", ""},
      {"<a&b> \"'", ""},
      {"  blancos  ", "  blancos"},
      {"dos\nlíneas\ty tabulador", ""},
      {"cp\x80malo", "cp\uFFFDmalo"},
      {"ñ\uFFFF", "ñ\uFFFD"},
      {longText, kept + "…"},
  };
  SheetWorld world;
  for (const auto& [text, expected] : texts) world.addRow({text, "2026-06-30"});
  world.exportList();
  const std::string read = world.read();
  for (const auto& [text, expected] : texts) {
    std::string quoted;
    for (const char c : expected.empty() ? text : expected)
      quoted += c == '\n' ? "\\n" : c == '\t' ? "\\t" : c == '"' ? "\\\"" : std::string(1, c);
    EXPECT_NE(read.find("| \"" + quoted + "\" | 30/06/2026"), read.npos) << text.substr(0, 80);
  }
}

}  // namespace

}  // namespace korvantes::office
