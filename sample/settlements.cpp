#include "sample/settlements.h"

#include <algorithm>
#include <string>

#include "data/money_rule.h"
#include "sample/lookups.h"
#include "sample/people.h"
#include "sample/rows.h"

namespace korvantes::sample {
namespace {

using Day = std::optional<ado::Date>;

/// A settlement to be made. With both filters off it takes notes of all invoices.
struct Plan {
  int agent;
  Day date;   ///< none: an old one without its date
  Day limit;  ///< latest day of the invoices
  bool collected;
  bool pending;
  const char* remarks;      ///< nullptr: Null
  int alsoTakes = 0;        ///< a note taken besides, before its invoice was cleared away
  std::size_t atMost = 99;  ///< notes
};

// In the order of their dates, as their keys.
const Plan kPlans[] = {
    {1, Day({2024, 5, 31}), Day({2024, 4, 30}), true, false, "Primer cuatrimestre de 2024"},
    {3, Day({2024, 6, 28}), Day({2024, 5, 31}), true, false, ""},
    {7, Day(), Day({2024, 6, 30}), true, false, "Traspasada del programa anterior"},
    {1, Day({2024, 9, 30}), Day({2024, 8, 31}), true, false, ""},
    {6, Day({2024, 9, 30}), Day(), true, false, nullptr},
    {2, Day({2024, 12, 31}), Day({2024, 11, 30}), true, false, "Cierre del año 2024"},
    {5, Day({2025, 1, 15}), Day({2024, 12, 31}), false, false, "D'acord amb l'agent", 51},
    {10, Day({2025, 3, 31}), Day(), true, false, ""},
    {4, Day({2025, 6, 30}), Day({2025, 5, 31}), true, false, "Hasta mayo", 0, 4},
    {4, Day({2025, 7, 31}), Day({2025, 6, 30}), true, true, "Incluye facturas a medio cobrar", 0,
     2},
    {8, Day({2025, 9, 30}), Day(), true, false, ""},
    {3, Day({2026, 3, 31}), Day({2026, 2, 28}), false, true, "Anticipo sobre pendientes"},
    {9, Day({2026, 4, 30}), Day(), true, false, nullptr},
};

const SampleInvoice* invoiceOf(const SampleDocuments& documents, const SampleNote& note) {
  const auto found = std::ranges::find_if(
      documents.invoices, [&note](const SampleInvoice& it) { return it.id == note.invoice; });
  return found == documents.invoices.end() ? nullptr : &*found;
}

bool isOffered(const SampleDocuments& documents, const SampleNote& note, const Plan& plan) {
  if (note.id == plan.alsoTakes) return true;
  if (note.agent != plan.agent || note.state != 2 || note.settlement.value_or(0) != 0) return false;
  const SampleInvoice* invoice = invoiceOf(documents, note);
  if (invoice == nullptr) return false;
  // The note of the worked example stays unsettled; notes without an invoice cannot be settled.
  if (note.id == 1 || (plan.limit && invoice->date > *plan.limit)) return false;
  if (plan.date && invoice->date > *plan.date) return false;
  if (plan.collected && plan.pending)
    return invoice->receipts.find_first_of("12345") != std::string::npos;
  if (plan.collected) return isCollected(*invoice);
  return !plan.pending || isPending(*invoice);
}

int regimeOf(int agent) {
  for (const SampleAgent& it : sampleAgents())
    if (it.id == agent) return it.regime.value_or(1);
  return 1;
}

int newestSettlement(ado::Connection& connection) {
  return connection.Execute("Select max(Lca_id) from Lca").Fields(0).Value().asLong();
}

void settle(ado::Connection& connection, SampleDocuments& documents, const Plan& plan) {
  std::vector<SampleNote*> notes;
  for (SampleNote& note : documents.notes)
    if (notes.size() < plan.atMost && isOffered(documents, note, plan)) notes.push_back(&note);

  std::int64_t base = 0;
  for (const SampleNote* note : notes) base += commissionOf(*note);
  const std::optional<Rate> rate = rateInForce(regimeOf(plan.agent), plan.date);
  const int vatPercent = rate ? rate->vat : 0;
  const int withholdingPercent = rate ? rate->withholding : 0;
  const ado::Decimal baseAmount(base, 2);
  const ado::Decimal vat = data::percentageOf(baseAmount, {vatPercent, 2});
  const ado::Decimal withholding = data::percentageOf(baseAmount, {withholdingPercent, 2});

  // Without a rate in force the screen stores rate 1 and no percentages.
  insertRows(connection, "Lca",
             "Lca_IdAg, Lca_Fecha, Lca_HFecha, Lca_Cob, Lca_NCob, Lca_IdTiva, Lca_Obs, Lca_Base, "
             "Lca_PorIva, Lca_Iva, Lca_PorRetencion, Lca_Retencion, Lca_Total",
             {{plan.agent, orNull(plan.date), orNull(plan.limit), plan.collected ? 1 : 0,
               plan.pending ? 1 : 0, rate ? rate->id : 1,
               plan.remarks == nullptr ? ado::Variant() : ado::Variant(plan.remarks), baseAmount,
               ado::Decimal(vatPercent, 2), vat, ado::Decimal(withholdingPercent, 2), withholding,
               baseAmount + vat - withholding}});
  const int settlement = newestSettlement(connection);
  std::vector<Row> details;
  for (SampleNote* note : notes) {
    note->settlement = settlement;
    details.push_back({settlement, note->id});
  }
  insertRows(connection, "Lcd", "Lcd_IdLca, Lcd_IdCav", details);
}

}  // namespace

void settleSample(ado::Connection& connection, SampleDocuments& documents) {
  for (const Plan& plan : kPlans) settle(connection, documents, plan);
}

}  // namespace korvantes::sample
