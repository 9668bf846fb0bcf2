#include <gmock/gmock.h>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

/// Makes the notes of agent 6 (regime 1) carry these commissions, one line each.
void giveCommissions(World& world, const std::vector<std::string>& amounts) {
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
    std::vector<std::string> commissions;
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

}  // namespace
}  // namespace korvantes::settlement
