#include "office/print/settlement_list.h"

#include <map>
#include <optional>
#include <string_view>
#include <utility>

#include "runtime/ado/error.h"

namespace korvantes::office {

namespace {

/// The runtime's number for an item that a collection does not have.
constexpr long kNoSuchItem = 3265;

std::size_t positionOf(const ado::Recordset& rows, std::string_view name) {
  if (const std::optional<std::size_t> position = rows.positionOf(name)) return *position;
  throw ado::Error(kNoSuchItem, "El informe de liquidaciones necesita la columna «" +
                                    std::string(name) +
                                    "»: busque las liquidaciones con sus facturas y emítalo de "
                                    "nuevo.");
}

ListColumns columnsOf(const ado::Recordset& rows) {
  const auto at = [&](std::string_view name) { return positionOf(rows, name); };
  // Rows by line of a delivery note bring the line's amount beside that of the whole invoice.
  const std::optional<std::size_t> base = rows.positionOf("Base");
  return {at("Lca_Id"),        at("Age_Id"),
          at("Age_Nom"),       at("Age_Nif"),
          at("Lca_Fecha"),     at("Factura"),
          at("Fav_Fecha"),     at("Fav_CliCod"),
          at("Fav_CliNom"),    base ? *base : at("Fav_Bruto"),
          at("Porcentaje"),    at("Comision"),
          at("Lca_Base"),      at("Lca_Iva"),
          at("Lca_Retencion"), at("Lca_Total")};
}

std::int32_t key(const ado::Variant& value) {
  return value.isNull() ? 0 : value.asLong();
}

}  // namespace

void SettlementSums::add(const SettlementSums& more) {
  base.add(more.base.value());
  vat.add(more.vat.value());
  withholding.add(more.withholding.value());
  total.add(more.total.value());
  commissions.add(more.commissions.value());
}

SettlementList::SettlementList(ado::Recordset invoices)
    : rows(std::move(invoices)), columns(columnsOf(rows)) {
  std::map<std::int32_t, std::size_t> agentPlaces;
  std::map<std::pair<std::int32_t, std::int32_t>, std::size_t> settlementPlaces;
  const auto count = static_cast<std::uint32_t>(rows.RecordCount());
  for (std::uint32_t row = 0; row < count; ++row) {
    const std::int32_t agentKey = key(cell(row, columns.agent));
    const std::int32_t settlementKey = key(cell(row, columns.settlement));
    const auto [agentPlace, newAgent] = agentPlaces.try_emplace(agentKey, agents.size());
    if (newAgent) agents.emplace_back();
    ListedAgent& agent = agents[agentPlace->second];

    const auto [place, newSettlement] =
        settlementPlaces.try_emplace({agentKey, settlementKey}, agent.settlements.size());
    if (newSettlement) {
      SettlementSums& stored = agent.settlements.emplace_back().sums;
      stored.base.add(inCents(cell(row, columns.base)));
      stored.vat.add(inCents(cell(row, columns.vat)));
      stored.withholding.add(inCents(cell(row, columns.withholding)));
      stored.total.add(inCents(cell(row, columns.total)));
      ++settlements;
    }
    ListedSettlement& settlement = agent.settlements[place->second];
    settlement.rows.push_back(row);
    settlement.sums.commissions.add(inCents(cell(row, columns.commission)));
  }
  for (ListedAgent& agent : agents) {
    for (const ListedSettlement& settlement : agent.settlements) agent.sums.add(settlement.sums);
    sums.add(agent.sums);
  }
}

}  // namespace korvantes::office
