#include <gmock/gmock.h>
#include <map>
#include <random>
#include <sstream>

#include "tests/print/print_world.h"

namespace korvantes::office {
namespace {

using ado::FieldType;
using testing::HasSubstr;
using testing::StartsWith;

ado::Recordset emptyRows() {
  ado::Recordset rows;
  for (const char* name :
       {"Fav_Id", "Lca_Id", "Fav_Bruto", "Comision", "Porcentaje", "Age_Id", "Fav_CliCod",
        "Lca_Base", "Fav_Numero", "Lca_Iva", "Lca_Retencion", "Lca_Total"})
    rows.Fields().Append(name, FieldType::Double);
  for (const char* name : {"Lca_Fecha", "Fav_Fecha"}) rows.Fields().Append(name, FieldType::Date);
  for (const char* name : {"Age_Nom", "Factura", "Fav_CliNom", "Fav_Serie", "Age_Nif"})
    rows.Fields().Append(name, FieldType::VarChar, 100);
  rows.Open();
  return rows;
}

struct Sums {
  long base = 0, vat = 0, withholding = 0, total = 0, commissions = 0;
  std::string text() const {
    return "Base " + amountText(base) + " IVA " + amountText(vat) + " Retención " +
           amountText(withholding) + " Total " + amountText(total) + " " + amountText(commissions);
  }
};

double euros(long cents) {
  return static_cast<double>(cents) / 100;
}

std::string show(PrintWorld& world, const ado::Recordset& rows) {
  const auto print = world.print();
  print->set("sAcotacion1", "Entre las fechas de liquidación Primera y Ultima");
  print->call("ShowReport", {ado::Variant(12), ado::Variant(""), ado::Variant(0), Omitted{},
                             Omitted{}, Omitted{}, Omitted{}, rows});
  return world.text();
}

TEST(ListReport, AddsUpSettlementsAgentsAndTheWhole) {
  PrintWorld world;
  ado::Recordset rows = emptyRows();
  std::mt19937 dice(12);
  std::map<int, Sums> settlements, agents;
  Sums whole;
  for (int row = 0; row < 1000; ++row) {
    // Two settlements of one agent and day come mixed; each agent has four.
    const int pair = row / 20, settlement = 2 * pair + static_cast<int>(dice() % 2);
    const int agent = 7 + pair / 2;
    const long commission = static_cast<long>(dice() % 300'000);
    const Sums head{settlement * 1000 + 5, settlement * 10 + 1, settlement + 9, settlement * 7, 0};
    const bool fresh = !settlements.contains(settlement);
    for (Sums* sums : {&settlements[settlement], &agents[agent], &whole}) {
      sums->commissions += commission;
      if (!fresh) continue;
      sums->base += head.base;
      sums->vat += head.vat;
      sums->withholding += head.withholding;
      sums->total += head.total;
    }
    rows.AddNew();
    rows.Collect("Lca_Id", settlement);
    rows.Collect("Age_Id", agent);
    rows.Collect("Age_Nom", "Agente " + std::to_string(agent));
    rows.Collect("Factura", "F/" + std::to_string(row));
    rows.Collect("Fav_CliNom", "Cliente");
    rows.Collect("Fav_Fecha", ado::Date{2026, 2, 28});
    if (row > 0) rows.Collect("Lca_Fecha", ado::Date{2026, 11, 24});
    rows.Collect("Fav_Bruto", euros(123'456));
    if (row % 2 == 0) rows.Collect("Porcentaje", 7.5);
    rows.Collect("Comision", euros(commission));
    rows.Collect("Lca_Base", euros(head.base));
    rows.Collect("Lca_Iva", euros(head.vat));
    rows.Collect("Lca_Retencion", euros(head.withholding));
    rows.Collect("Lca_Total", euros(head.total));
    rows.Update();
  }
  rows.moveTo(345);
  const std::string text = show(world, rows);

  EXPECT_EQ(rows.position(), 345U);
  EXPECT_EQ(world.delivered.back().rows, 1000U);
  EXPECT_THAT(text, HasSubstr("Entre las fechas de liquidación Primera y Ultima"));
  EXPECT_THAT(lineWith(text, "F/0 "), StartsWith("F/0 28/02/2026 Cliente 1.234,56 7,50 "));
  EXPECT_EQ(lineWith(text, "F/1 ").find("7,50"), std::string::npos);
  EXPECT_THAT(text, HasSubstr("sin fecha"));
  for (const auto& [number, sums] : settlements) {
    const std::string of = "Total liquidación " + std::to_string(number);
    ASSERT_EQ(lineWith(text, of + " "), of + " " + sums.text());
    ASSERT_EQ(count(text, of + " "), 1U);
  }
  for (const auto& [number, sums] : agents) {
    const std::string of = "Total agente " + std::to_string(number);
    ASSERT_EQ(lineWith(text, of + " "), of + " " + sums.text());
  }
  EXPECT_EQ(lineWith(text, "Total de "), "Total de 100 liquidaciones " + whole.text());

  // Captions stand on every page, and below headings no page begins with a sum.
  std::istringstream pages(text);
  std::size_t number = 0;
  for (std::string page; std::getline(pages, page, '\f') && !page.empty(); ++number) {
    EXPECT_THAT(page, HasSubstr("Código"));
    EXPECT_LT(page.find("F/"), page.find("Total ")) << page;
  }
  EXPECT_THAT(text, HasSubstr("Página 1 de " + std::to_string(number) + "\n"));
  EXPECT_GT(count(text, "(continuación)"), 5U);
}

}  // namespace
}  // namespace korvantes::office
