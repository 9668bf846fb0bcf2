#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

using Texts = std::vector<std::string>;

/// Makes the notes of agent 6 (regime 1) carry these commissions, one line each.
void giveCommissions(World& world, const Texts& amounts) {
  int id = 100;
  for (const std::string& amount : amounts) {
    const std::string note = std::to_string(++id);
    world.sql("INSERT INTO Cav VALUES (" + note + ", 'Z', 1, 'x', 0, 0, 1, 6, 2, Null)");
    world.sql("INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (" + note + ", " +
              note + ", " + amount + ", 100)");
  }
}

struct Totals {
  std::string base, vat, withholding, total;
  friend bool operator==(const Totals&, const Totals&) = default;
  friend std::ostream& operator<<(std::ostream& out, const Totals& t) {
    return out << t.base << " + " << t.vat << " - " << t.withholding << " = " << t.total;
  }
};

Totals shown(const Screen& screen) {
  return {screen.text(10).Text(), screen.text(9).Text(), screen.text(12).Text(),
          screen.text(8).Text()};
}

TEST(SettlementTotals, ComeFromTheTickedCommissionsAndTheRatesOnScreen) {
  struct Case {
    const char* what;
    const char* regional;
    Texts commissions;
    const char *vatRate, *withholdingRate;
    Totals expected;
  };
  const Case cases[] = {
      {"no padding", "es-ES", {"12.50"}, "10", "0", {"12,5", "1,25", "0", "13,75"}},
      {"other settings", "en-US", {"12.50"}, "10", "0", {"12.5", "1.25", "0", "13.75"}},
      {"withholding above VAT", "es-ES", {"100"}, "10", "19", {"100", "10", "19", "91"}},
      {"negative", "es-ES", {"100", "-150"}, "21", "15", {"-50", "-10,5", "-7,5", "-53"}},
      {"cancelling", "es-ES", {"100", "-100"}, "21", "15", {"0", "0", "0", "0"}},
      {"15 digits", "es-ES", {"0.10", "0.20"}, "0", "0", {"0,3", "0", "0", "0,3"}},
      {"noise in the total", "es-ES", {"0.70", "0.10"}, "25", "37.5", {"0,8", "0,2", "0,3", "0,7"}},
      {"half cents away from zero", "es-ES", {"1"}, "0.5", "1.5", {"1", "0,01", "0,02", "0,99"}},
      {"half a cent below", "es-ES", {"-1"}, "0.5", "0", {"-1", "-0,01", "0", "-1,01"}},
      {"cents of many", "es-ES", Texts(45, "0.90"), "21", "15", {"40,5", "8,51", "6,08", "42,93"}},
      {"whole cents", "es-ES", Texts(41, "1.30"), "0", "15", {"53,3", "0", "8", "45,3"}},
      {"no noise", "es-ES", Texts(100, "0.10"), "0", "0", {"10", "0", "0", "10"}},
      {"almost cancelling",
       "es-ES",
       {"1000.12", "-1000.21"},
       "0",
       "0",
       {"-0,09", "0", "0", "-0,09"}},
      {"thousands", "es-ES", {"1234567.89"}, "0", "0", {"1234567,89", "0", "0", "1234567,89"}},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.what);
    World world;
    world.desktop.regional(screen::Regional::named(each.regional));
    giveCommissions(world, each.commissions);
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
      EXPECT_EQ(shown(screen), (Totals{"0", "0", "0", "0"}));
    });
    EXPECT_THAT(world.messages, testing::IsEmpty());
  }
}

TEST(SettlementTotals, ThatCannotBeComputedAreToldShownEmptyAndNotStored) {
  struct Case {
    const char *cell, *vatRate, *told;
  };
  const Case cases[] = {
      {"", "21,00", "«» no es un número"},
      {"12.50", "21,00", "«12.50» no es un número"},
      {"90000000000000000,00", "0", "El número es demasiado grande para un importe exacto"},
      {"99999999999999999999,00", "0", "«99999999999999999999,00» es un número demasiado grande"},
      {"10,00", "veinte", "«veinte» no es un número"},
  };
  for (const Case& each : cases) {
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
    EXPECT_EQ(world.sql("select * from Lca").RecordCount(), 0U);
  }
}

}  // namespace
}  // namespace korvantes::settlement
