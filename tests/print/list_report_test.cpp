#include <gmock/gmock.h>
#include <map>
#include <random>
#include <sstream>

#include "report/merged_invoices.h"
#include "report/search_statements.h"
#include "tests/print/print_world.h"
#include "tests/support/recording_connection.h"

namespace korvantes::office {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct Sums {
  long base = 0, vat = 0, withholding = 0, total = 0, commissions = 0;
  void add(const Sums& other) {
    for (auto sum : {&Sums::base, &Sums::vat, &Sums::withholding, &Sums::total, &Sums::commissions})
      this->*sum += other.*sum;
  }
  std::string text() const {
    return " Base " + amountText(base) + " IVA " + amountText(vat) + " Retención " +
           amountText(withholding) + " Total " + amountText(total) + " " + amountText(commissions);
  }
};

/// The values of a settlement for PrintWorld::settle.
std::string stored(const std::string& date, const Sums& head) {
  const auto amount = [](long cents) { return std::to_string(cents) + " / 100.0, "; };
  return date + ", Null, 0, 0, " + amount(head.base) + "0, " + amount(head.vat) + "0, " +
         amount(head.withholding) + amount(head.total) + "Null";
}

TEST(ListReport, AddsUpSettlementsDaysAgentsAndTheWhole) {
  PrintWorld world;
  std::vector<ado::Variant> cells;
  std::mt19937 dice(12);
  // The rows of two settlements of one agent and day come mixed; each agent has two such days.
  const auto agentOf = [](int settlement) { return 7 + (settlement - 1) / 4 * 2; };
  const auto isDated = [](int settlement) { return (settlement - 1) / 2 % 2 != 0; };
  std::map<int, Sums> settlements, agents;
  for (int row = 0; row < 1000; ++row) {
    const int settlement = 1 + row / 20 * 2 + static_cast<int>(dice() % 2);
    const int agent = agentOf(settlement);
    const long commission = static_cast<long>(dice() % 300'000);
    settlements[settlement].add({commission, 0, 0, 0, commission});
    cells.insert(
        cells.end(),
        {settlement, agent, "Agente " + std::to_string(agent), ado::Variant(),
         isDated(settlement) ? ado::Variant(ado::Date{2026, 11, 24}) : ado::Variant(),
         "F/" + std::to_string(row), ado::Date{2026, 2, 28}, ado::Variant(), "Cliente", 1234.56,
         row % 2 == 0 ? ado::Variant(7.5) : ado::Variant(), static_cast<double>(commission) / 100});
  }
  std::vector<std::string> lines;
  std::map<std::pair<int, bool>, Sums> days;
  Sums whole;
  for (auto& [number, sums] : settlements) {
    sums.add({0, number * 10 + 1, number + 9, number * 7, 0});
    world.note(number, 0, std::to_string(sums.commissions) + " / 100.0", "100");
    const int agent = agentOf(number);
    const bool dated = isDated(number);
    world.settle({number}, stored(dated ? "'24/11/2026'" : "Null", sums), agent);
    lines.push_back("Total liquidación " + std::to_string(number) + sums.text());
    for (Sums* sum : {&days[{agent, dated}], &agents[agent], &whole}) sum->add(sums);
  }
  for (const auto& [day, sums] : days)
    lines.push_back((day.second ? "Total del 24/11/2026" : "Total sin fecha") + sums.text());
  for (const auto& [agent, sums] : agents)
    lines.push_back("Total agente " + std::to_string(agent) + sums.text());
  lines.push_back("Total de 100 liquidaciones" + whole.text());
  // Among those that the statement gives, but of an agent without rows.
  world.settle({}, stored("'24/11/2026'", whole), 8);
  ado::Recordset rows = support::resultOf(
      {"Lca_Id", "Age_Id", "Age_Nom", "Age_Nif", "Lca_Fecha", "Factura", "Fav_Fecha", "Fav_CliCod",
       "Fav_CliNom", "Fav_Bruto", "Porcentaje", "Comision"},
      std::move(cells));
  rows.moveTo(345);
  const std::string text = world.reportText(12, "", rows);

  EXPECT_EQ(rows.position(), 345U);
  EXPECT_EQ(world.delivered.back().rows, 1000U);
  EXPECT_THAT(text, HasSubstr("\nF/0 28/02/2026 Cliente 1.234,56 7,50 "));
  EXPECT_THAT(text, Not(HasSubstr("\nF/1 28/02/2026 Cliente 1.234,56 7,50 ")));
  EXPECT_THAT(missing(text, lines), IsEmpty());
  EXPECT_EQ(count(text, "Total liquidación "), settlements.size());
  EXPECT_THAT(text, Not(HasSubstr("suman")));

  // Captions are on every page, and below headings no page begins with a sum.
  std::istringstream pages(text);
  std::size_t number = 0;
  for (std::string page; std::getline(pages, page, '\f') && !page.empty(); ++number) {
    EXPECT_THAT(page, HasSubstr("Código"));
    EXPECT_LT(page.find("F/"), page.find("Total ")) << page;
  }
  EXPECT_THAT(text, HasSubstr("Página 1 de " + std::to_string(number) + "\n"));
  EXPECT_GT(count(text, "(continuación)"), 5U);
}

TEST(ListReport, FollowsEverySettlementOfADayThroughTheMerge) {
  PrintWorld world;
  world.sql("INSERT INTO Cli (Cli_Id) VALUES (1)");
  for (const int invoice : {1, 2, 3}) world.invoice(invoice);
  world.sql("UPDATE Fav SET Fav_IdCli = 1, Fav_BIva1 = 1000, Fav_Biva2 = 0, Fav_Biva3 = 0");
  world.note(1, 1, "1000", "10");
  world.note(2, 1, "500", "10");
  world.note(3, 2, "70", "10");
  world.note(4, 9, "20", "10");  // its invoice is gone
  world.note(5, 3, "300", "10");
  world.note(6, 3, "110", "10");
  const std::string day = "'24/11/2026'";
  world.settle({1}, stored(day, {10000, 2100, 1500, 10600}));
  world.settle({2}, stored(day, {5000, 1050, 750, 5300}));  // its only invoice is in the row of 1
  world.settle({3, 4}, stored(day, {900, 189, 135, 954}));
  world.settle({5}, stored("'25/11/2026'", {3001, 0, 0, 3001}));  // a cent more than it earns now
  world.settle({6}, stored("'26/11/2026'", {1100, 0, 0, 1100}));
  const auto connection = world.connection;
  const ado::Recordset rows = report::facturasDe(
      connection->Execute(report::sentenciaDetalle(report::Forma::Factura, true, "")), true,
      plindor::UtilFormulario());
  ASSERT_EQ(rows.RecordCount(), 4U);
  world.sql("DELETE FROM Lca WHERE Lca_Id = 5");
  connection->forgetCalls();
  const std::string text = world.reportText(12, "", rows);

  EXPECT_EQ(connection->calls().size(), 1U);
  const std::vector<std::string> words = {
      " 1.000,00 15,00 150,00\n",
      "Total liquidación 1" + Sums{10000, 2100, 1500, 10600, 10000}.text(),
      "Sus filas suman 150,00. Una factura de varias liquidaciones",
      "Total liquidación 2" + Sums{5000, 1050, 750, 5300, 5000}.text(),
      "Sin filas propias: sus facturas están",
      "Total liquidación 3" + Sums{900, 189, 135, 954, 900}.text(),
      "Total del 24/11/2026" + Sums{15900, 3339, 2385, 16854, 15900}.text(),
      "Las filas suman 157,00: hay albaranes sin factura",
      "Total liquidación 4" + Sums{3001, 0, 0, 3001, 3000}.text(),
      "suman hoy 30,00, no la base guardada",
      "La liquidación ha cambiado o ya no existe",
      "Total agente 7" + Sums{18901, 3339, 2385, 19855, 18900}.text(),
      "Total de 4 liquidaciones" + Sums{18901, 3339, 2385, 19855, 18900}.text(),
  };
  for (const std::string& each : words) EXPECT_EQ(count(text, each), 1U) << each;
  EXPECT_EQ(count(text, "suman hoy"), 1U);
  EXPECT_EQ(count(text, "Total liquidación "), 4U);
  EXPECT_EQ(count(text, "Las filas suman"), 1U);
}

}  // namespace
}  // namespace korvantes::office
