// Random lists with random marks and rates, against whole-number arithmetic: what the boxes show,
// and what is stored.
//
//   KORVANTES_PROPERTY_TOTALS   how many lists (300; 10000 takes a while)
//   KORVANTES_PROPERTY_SEED     seed of another run
#include <cstdlib>
#include <gtest/gtest.h>
#include <random>

#include "tests/settlement/settlement_world.h"

namespace korvantes::settlement {
namespace {

constexpr int kFirstNote = 1000, kMostRows = 5000;

std::uint64_t setting(const char* name, std::uint64_t usual) {
  const char* value = std::getenv(name);
  return value == nullptr ? usual : std::strtoull(value, nullptr, 10);
}

/// Cents as a box shows them, or a cell with its two decimals.
std::string text(std::int64_t cents, bool padded) {
  const std::int64_t size = std::abs(cents);
  std::string decimals = std::to_string(100 + size % 100).substr(1);
  while (!padded && !decimals.empty() && decimals.back() == '0') decimals.pop_back();
  return (cents < 0 ? "-" : "") + std::to_string(size / 100) +
         (decimals.empty() ? "" : "," + decimals);
}

/// A percentage in hundredths of an amount in cents, halves away from zero.
std::int64_t share(std::int64_t cents, std::int64_t rate) {
  const std::int64_t exact = cents * rate;
  return (exact + (exact < 0 ? -5000 : 5000)) / 10000;
}

class Random {
 public:
  explicit Random(std::uint64_t seed) : engine_(seed) {}
  std::int64_t upTo(std::int64_t most) {
    return static_cast<std::int64_t>(engine_() >> 1U) % (most + 1);
  }
  /// Many small numbers, few large ones.
  std::int64_t size(std::int64_t most) { return upTo(upTo(upTo(upTo(most)))); }

 private:
  std::mt19937_64 engine_;
};

/// Fills the list with random commissions and marks. Gives the sum of the marked ones in cents.
std::int64_t fill(screen::ListView& list, Random& random) {
  const std::int64_t rows = 1 + random.size(kMostRows - 1), density = random.upTo(100);
  const std::int64_t repeated = random.upTo(3) == 0 ? 1 + random.upTo(999) : 0;
  std::int64_t base = 0;
  for (int row = 0; row < rows; ++row) {
    const std::int64_t cents =
        repeated != 0 ? repeated : random.size(100'000'000) * (random.upTo(5) == 0 ? -1 : 1);
    auto& item = list.Add("");
    item.SubItems = {"", "", "", "0,00", "0", text(cents, true)};
    item.Tag = std::to_string(kFirstNote + row);
    // The first one is ticked by the user.
    item.Checked = row > 0 && random.upTo(99) < density;
    if (row == 0 || item.Checked) base += cents;
  }
  return base;
}

TEST(SettlementTotals, AreExactToTheCentOnScreenAndInTheStoredRow) {
  const std::uint64_t seed = setting("KORVANTES_PROPERTY_SEED", 20261124);
  SCOPED_TRACE("KORVANTES_PROPERTY_SEED=" + std::to_string(seed));
  Random random(seed);
  World world;
  std::vector<std::string> notes;
  for (int note = kFirstNote; note < kFirstNote + kMostRows; ++note)
    notes.push_back("INSERT INTO Cav VALUES (" + std::to_string(note) +
                    ", 'Z', 1, 'x', 0, 0, 1, 9, 2, Null)");
  world.sqlAll(notes);

  world.show([&](Screen& screen) {
    screen.search("5", false, false);
    for (std::uint64_t n = setting("KORVANTES_PROPERTY_TOTALS", 300); n > 0; --n) {
      screen.click("cmdCancelar");
      const std::int64_t base = fill(screen.list(), random);
      const std::int64_t vatRate = random.upTo(2500), withholdingRate = random.upTo(2500);
      screen.text(2).Text = "24/11/2026";
      screen.text(3).Text = text(vatRate, true);
      screen.text(11).Text = text(withholdingRate, true);
      screen.control("Frame1").Enabled = true;
      screen.tick(0);

      const std::int64_t vat = share(base, vatRate), withholding = share(base, withholdingRate);
      const std::int64_t total = base + vat - withholding;
      SCOPED_TRACE(std::to_string(screen.list().Count()) + " rows at " + text(vatRate, true) +
                   " and " + text(withholdingRate, true));
      ASSERT_EQ(screen.text(10).Text(), text(base, false));
      ASSERT_EQ(screen.text(9).Text(), text(vat, false));
      ASSERT_EQ(screen.text(12).Text(), text(withholding, false));
      ASSERT_EQ(screen.text(8).Text(), text(total, false));

      screen.click("cmdGrabar");
      const ado::Recordset row = world.sql("select * from Lca");
      ASSERT_EQ(row.RecordCount(), 1U) << world.messages.back();
      for (const auto& [column, expected] : {std::pair{"Lca_Base", base},
                                             {"Lca_PorIva", vatRate},
                                             {"Lca_Iva", vat},
                                             {"Lca_PorRetencion", withholdingRate},
                                             {"Lca_Retencion", withholding},
                                             {"Lca_Total", total}})
        ASSERT_EQ(row.Collect(column).decimal(), ado::Decimal(expected, 2)) << column;
      world.sqlAll(std::vector<std::string>{"delete from Lca where Lca_Id > 0",
                                            "delete from Lcd where Lcd_IdLca > 0"});
    }
  });
}

}  // namespace
}  // namespace korvantes::settlement
