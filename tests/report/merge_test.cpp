#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <tuple>

#include "report/merged_invoices.h"
#include "tests/support/recording_connection.h"

namespace korvantes::report {
namespace {

/// A row of the statement by invoice. Settlements 2n and 2n + 1 share a date, invoices likewise a
/// number; all agents have one name.
struct Note {
  int settlement, invoice, agent;
  std::int64_t cents;
  int tie() const { return settlement / 2 * 10 + invoice / 2; }
};

const ado::Variant kDates[] = {{}, ado::Date{2024, 5, 31}, ado::Date{2024, 6, 30}};

ado::Recordset merged(const std::vector<Note>& notes) {
  std::vector<ado::Variant> cells;
  for (const auto& [settlement, invoice, agent, cents] : notes) {
    const ado::Variant number = invoice < 2 ? ado::Variant() : ado::Variant(invoice / 2);
    cells.insert(cells.end(), {invoice, settlement, "Ana Gil", kDates[settlement / 2], "A/12   ",
                               kDates[1], "Bar Pepe", "A", number, 430, agent, "1Z", 1, 2, 3, 4, 5,
                               ado::Decimal::money(cents * 100)});
  }
  return facturasDe(support::resultOf({"Fav_Id", "Lca_Id", "Age_Nom", "Lca_Fecha", "Factura",
                                       "Fav_fecha", "Fav_CliNom", "Fav_Serie", "Fav_Numero",
                                       "Fav_CliCod", "Age_Id", "Age_Nif", "Lca_Base", "Lca_Iva",
                                       "Lca_Retencion", "Lca_Total", "Fav_Bruto", "Comision"},
                                      std::move(cells)),
                    true, plindor::UtilFormulario());
}

TEST(MergedInvoices, EachInvoiceAgentAndDateHasOneRowWhateverTheOrderOfTies) {
  std::mt19937 dice(2026);
  const auto below = [&](unsigned limit) { return static_cast<int>(dice() % limit); };
  for (int round = 0; round < 300; ++round) {
    std::vector<Note> notes(dice() % 30 + 1);
    for (Note& note : notes) note = {below(6), below(6), below(2), below(2'000'000) - 500'000};
    std::stable_sort(notes.begin(), notes.end(),
                     [](const Note& a, const Note& b) { return a.tie() < b.tie(); });
    std::map<std::tuple<int, int, int>, Note> expected;
    for (const Note& note : notes) {
      const auto [row, isNew] =
          expected.try_emplace({note.settlement / 2, note.invoice, note.agent}, note);
      if (!isNew) row->second.cents += note.cents;
    }
    const ado::Recordset rows = merged(notes);
    ASSERT_EQ(rows.RecordCount(), expected.size());
    EXPECT_EQ(rows.position(), rows.RecordCount() - 1);
    for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
      const int settlement = rows.cell(row, 1).asLong();
      const Note& first =
          expected.at({settlement / 2, rows.cell(row, 0).asLong(), rows.cell(row, 10).asLong()});
      EXPECT_EQ(settlement, first.settlement);
      EXPECT_EQ(rows.cell(row, 3), kDates[settlement / 2]);
      EXPECT_EQ(rows.cell(row, 8).asDouble(), static_cast<double>(first.cents) / 100);
    }
  }
  EXPECT_FALSE(merged({}).isOpen());
}

}  // namespace
}  // namespace korvantes::report
