#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using Texts = std::vector<std::string>;

/// Base, VAT, withholding and total.
Texts shown(const Screen& screen) {
  Texts result;
  for (int index : {10, 9, 12, 8}) result.push_back(screen.text(index).Text());
  return result;
}

TEST(SettlementTotals, ComeFromTheTickedCommissionsAndTheRatesOnScreen) {
  const struct {
    const char* regional;
    Texts commissions;
    const char *vatRate, *withholdingRate;
    Texts expected;
  } cases[] = {
      {"en-US", {"12.50"}, "10", "0", {"12.5", "1.25", "0", "13.75"}},
      {"es-ES", {"0.70", "0.10"}, "25", "37.5", {"0,8", "0,2", "0,3", "0,7"}},
      {"es-ES", {"1"}, "0.5", "1.5", {"1", "0,01", "0,02", "0,99"}},
      {"es-ES", {"-1"}, "0.5", "0", {"-1", "-0,01", "0", "-1,01"}},
      {"es-ES", Texts(45, "0.90"), "21", "15", {"40,5", "8,51", "6,08", "42,93"}},
      {"es-ES", Texts(41, "1.30"), "0", "15", {"53,3", "0", "8", "45,3"}},
      {"es-ES", Texts(100, "0.10"), "0", "0", {"10", "0", "0", "10"}},
      {"es-ES", {"1000.12", "-1000.21"}, "0", "0", {"-0,09", "0", "0", "-0,09"}},
      {"es-ES", {"1234567.89"}, "0", "0", {"1234567,89", "0", "0", "1234567,89"}},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.expected[0]);
    World world;
    world.desktop.regional(screen::Regional::named(each.regional));
    int note = 100;
    for (const std::string& commission : each.commissions) world.addNote(++note, 6, commission);
    world.sql(std::string("Update Vespara.dbo.Tivas set Tiva_Iva = ") + each.vatRate +
              ", Tiva_Ret = " + each.withholdingRate + " where Tiva_Id = 4");
    world.show([&](Screen& screen) {
      screen.search("6", false, false);
      screen.click("cmdSelTodo");
      EXPECT_EQ(shown(screen), each.expected);
      // Unticking and ticking again brings back the same texts; without a tick all is 0.
      screen.tick(0, false);
      screen.tick(0, true);
      EXPECT_EQ(shown(screen), each.expected);
      for (std::size_t row = 0; row < screen.list().Count(); ++row) screen.tick(row, false);
      EXPECT_EQ(shown(screen), Texts(4, "0"));
    });
    EXPECT_THAT(world.messages, testing::IsEmpty());
  }
}

TEST(SettlementTotals, ThatCannotBeComputedAreToldShownEmptyAndNotStored) {
  const struct {
    const char *cell, *vatRate, *told;
  } cases[] = {
      {"", "21,00", "«» no es un número"},
      {"12.50", "21,00", "«12.50» no es un número"},
      {"90000000000000000,00", "0", "El número es demasiado grande para un importe exacto"},
      {"99999999999999999999,00", "0", "«99999999999999999999,00» es un número demasiado grande"},
      {"10,00", "veinte", "«veinte» no es un número"},
  };
  for (const auto& each : cases) {
    SCOPED_TRACE(each.told);
    World world;
    world.show([&](Screen& screen) {
      screen.makeOut({3});
      screen.text(3).Text = each.vatRate;
      screen.list().Clear();
      for (const char* note : {"1", "3"}) {
        auto& row = screen.list().Add("");
        row.SubItems = {"", "", "", "", "", each.cell};
        row.Tag = note;
      }
      screen.click("cmdSelTodo");
      EXPECT_EQ(world.messages.back(),
                std::string("[16] Liquidacion de comisiones a Agentes | ") + each.told);
      EXPECT_EQ(screen.text(8).Text(), "");
      screen.click("cmdGrabar");
      EXPECT_THAT(world.messages.back(), testing::HasSubstr(each.told));
    });
    EXPECT_EQ(world.count("Lca"), 0U);
  }
}

}  // namespace
}  // namespace korvantes::settlement
