#include <algorithm>
#include <gmock/gmock.h>
#include <map>
#include <random>
#include <tuple>

#include "report/merged_invoices.h"
#include "runtime/screen/conversions.h"
#include "tests/support/recording_connection.h"

namespace korvantes::report {
namespace {

const ado::Variant kNull;
const ado::Date kMay{2024, 5, 31}, kJune{2024, 6, 30};

ado::Decimal cents(long long amount) {
  return ado::Decimal(amount * 100, ado::Decimal::kMoneyScale);
}

/// A row of the statement by invoice: one delivery note.
struct Note {
  int invoice, settlement;
  ado::Variant commission;
  ado::Variant gross = cents(10000);
  ado::Variant date = kMay;
  int agent = 7;
  std::string agentName = "Ana Gil", taxNumber = "1Z", customer = "Bar Pepe";
  ado::Variant number = invoice;
};

ado::Recordset merged(const std::vector<Note>& notes) {
  std::vector<ado::Variant> cells;
  for (const Note& note : notes) {
    cells.insert(cells.end(),
                 {note.invoice, note.settlement, note.agentName, note.date, "A/12   ", kMay,
                  note.customer, "A", note.number, 430, note.customer, note.agent, note.taxNumber,
                  cents(1), cents(2), cents(3), cents(4), note.gross, note.commission});
  }
  return facturasDe(
      support::resultOf(
          {"Fav_Id", "Lca_Id", "Age_Nom", "Lca_Fecha", "Factura", "Fav_fecha", "Fav_CliNom",
           "Fav_Serie", "Fav_Numero", "Fav_CliCod", "Fav_CliNom", "Age_Id", "Age_Nif", "Lca_Base",
           "Lca_Iva", "Lca_Retencion", "Lca_Total", "Fav_Bruto", "Comision"},
          std::move(cells)),
      true, plindor::UtilFormulario());
}

/// A large commission and a hundred of a cent each.
std::vector<Note> manyCents() {
  std::vector<Note> notes(101, {1, 5, cents(1), kNull});
  notes[0].commission = cents(9'000'000'000'000'000);
  return notes;
}

/// "settlement: commission percentage" of each row.
std::vector<std::string> amounts(const ado::Recordset& rows) {
  std::vector<std::string> lines;
  const screen::Regional spanish;
  for (std::size_t row = 0; row < rows.RecordCount(); ++row)
    lines.push_back(screen::CStr(rows.cell(row, 1), spanish) + ": " +
                    screen::CStr(rows.cell(row, 8), spanish) + " " +
                    screen::CStr(rows.cell(row, 9), spanish));
  return lines;
}

TEST(MergedInvoices, NotesOfOneInvoiceAgentAndDateBecomeOneRow) {
  struct Case {
    const char* name;
    std::vector<Note> notes;
    std::vector<std::string> rows;
  };
  const ado::Variant ten = cents(10), twenty = cents(20);
  const Case cases[] = {
      {"two notes of one settlement, to exact cents",
       {{1, 5, ten}, {1, 5, twenty}, {2, 5, ten}},
       {"5: 0,3 0,3", "5: 0,1 0,1"}},
      {"two settlements of one date", {{1, 5, ten}, {1, 6, twenty}}, {"5: 0,3 0,3"}},
      {"two settlements of different dates, with nothing in between",
       {{1, 5, ten}, {1, 6, twenty, cents(10000), kJune}},
       {"5: 0,1 0,1", "6: 0,2 0,2"}},
      {"of one date and of none",
       {{1, 5, ten}, {1, 6, twenty, cents(10000), kNull}, {1, 7, ten, cents(10000), kNull}},
       {"5: 0,1 0,1", "6: 0,3 0,3"}},
      {"two agents", {{1, 5, ten}, {1, 6, ten, cents(100), kMay, 8}}, {"5: 0,1 0,1", "6: 0,1 10"}},
      {"two agents of one name, mixed",
       {{1, 5, ten},
        {1, 6, ten, cents(100), kMay, 8},
        {1, 5, twenty},
        {1, 6, ten, cents(100), kMay, 8}},
       {"5: 0,3 0,3", "6: 0,2 20"}},
      {"two invoices without a number, mixed",
       {{1, 5, ten, cents(0), kMay, 7, "", "", "", kNull},
        {2, 5, ten, cents(0), kMay, 7, "", "", "", kNull},
        {1, 5, ten, cents(0), kMay, 7, "", "", "", kNull}},
       {"5: 0,2 ", "5: 0,1 "}},
      {"again after another number",
       {{1, 5, ten}, {2, 5, ten}, {1, 5, ten}},
       {"5: 0,1 0,1", "5: 0,1 0,1", "5: 0,1 0,1"}},
      {"cents beside an amount that leaves them no digits", manyCents(), {"5: 90000000000001 "}},
  };
  for (const Case& each : cases) {
    const ado::Recordset rows = merged(each.notes);
    EXPECT_EQ(amounts(rows), each.rows) << each.name;
    EXPECT_EQ(rows.position(), rows.RecordCount() - 1) << each.name;
  }
  EXPECT_FALSE(merged({}).isOpen());
}

TEST(MergedInvoices, EachInvoiceAgentAndDateHasOneRowWhateverTheOrderOfTies) {
  std::mt19937 dice(2026);
  for (int round = 0; round < 300; ++round) {
    // Invoices 2n and 2n + 1 share a number; both agents have one name.
    std::vector<Note> notes(dice() % 30 + 1, {0, 0, kNull});
    std::map<std::tuple<bool, int, int>, long long> expected;
    for (Note& note : notes) {
      const long long amount = static_cast<long long>(dice() % 2'000'000) - 500'000;
      const bool june = dice() % 2 == 0;
      note.invoice = static_cast<int>(dice() % 6);
      note.number = note.invoice / 2;
      note.agent = 7 + static_cast<int>(dice() % 2);
      note.date = june ? kJune : kMay;
      note.commission = cents(amount);
      expected[{june, note.invoice, note.agent}] += amount;
    }
    std::sort(notes.begin(), notes.end(), [](const Note& a, const Note& b) {
      return std::pair(a.date.date(), a.number.whole()) <
             std::pair(b.date.date(), b.number.whole());
    });
    const ado::Recordset rows = merged(notes);
    ASSERT_EQ(rows.RecordCount(), expected.size());
    for (std::size_t row = 0; row < rows.RecordCount(); ++row) {
      const auto key = std::tuple(rows.cell(row, 3).date() == kJune, rows.cell(row, 0).asLong(),
                                  rows.cell(row, 10).asLong());
      EXPECT_EQ(rows.cell(row, 8).asDouble(), static_cast<double>(expected.at(key)) / 100);
    }
  }
}

TEST(MergedInvoices, TextsAreTrimmedAndCutToTheirFieldByCharacters) {
  Note note{1, 5, cents(10)};
  for (std::string* text : {&note.agentName, &note.customer, &note.taxNumber}) {
    text->clear();
    for (int i = 0; i < 101; ++i) *text += "ñ";
  }
  note.customer = "  " + note.customer;
  const ado::Recordset rows = merged({note});
  const auto length = [&](const char* name) { return rows.Collect(name).text().size() / 2; };
  EXPECT_EQ(length("Age_Nom"), 100U);
  EXPECT_EQ(length("Fav_CliNom"), 100U);
  EXPECT_EQ(length("Age_Nif"), 20U);
  EXPECT_EQ(rows.Collect("Factura").text(), "A/12");
  EXPECT_TRUE(rows.Collect("Fav_Serie").isNull() && rows.Collect("Fav_Numero").isNull());
}

}  // namespace
}  // namespace korvantes::report
