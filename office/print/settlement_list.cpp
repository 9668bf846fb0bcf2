#include "office/print/settlement_list.h"

#include <limits>
#include <optional>
#include <string_view>

#include "office/print/stored_settlements.h"
#include "runtime/ado/error.h"

namespace korvantes::office {

namespace {

/// The runtime's number for an item that a collection does not have.
constexpr long kNoSuchItem = 3265;

constexpr std::int64_t kUndated = std::numeric_limits<std::int64_t>::min();

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
  return {at("Lca_Id"),     at("Age_Id"),
          at("Age_Nom"),    at("Age_Nif"),
          at("Lca_Fecha"),  at("Factura"),
          at("Fav_Fecha"),  at("Fav_CliCod"),
          at("Fav_CliNom"), base ? *base : at("Fav_Bruto"),
          at("Porcentaje"), at("Comision")};
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

SettlementList::DayKey SettlementList::dayKey(const ado::Variant& agent, const ado::Variant& date) {
  return {key(agent), date.isNull() ? kUndated : date.date().serial()};
}

SettlementList::SettlementList(ado::Recordset invoices)
    : rows_(std::move(invoices)), columns_(columnsOf(rows_)) {
  const auto count = static_cast<std::uint32_t>(rows_.RecordCount());
  for (std::uint32_t row = 0; row < count; ++row) {
    const ado::Variant& date = cell(row, columns_.settlementDate);
    const DayKey keyOfDay = dayKey(cell(row, columns_.agent), date);
    const auto [agentPlace, newAgent] = agentPlaces_.try_emplace(keyOfDay.first, agents_.size());
    if (newAgent) agents_.emplace_back().firstRow = row;
    ListedAgent& agent = agents_[agentPlace->second];

    const auto [dayPlace, newDay] = dayPlaces_.try_emplace(keyOfDay, agent.days.size());
    if (newDay) agent.days.emplace_back().date = date;
    ListedDay& day = agent.days[dayPlace->second];

    ListedSettlement& settlement = settlementOf(day, keyOfDay, key(cell(row, columns_.settlement)));
    settlement.rows.push_back(row);
    const std::optional<ado::Decimal> commission = inCents(cell(row, columns_.commission));
    settlement.commissionsOfRows.add(commission);
    day.commissionsOfRows.add(commission);
  }
}

ListedSettlement& SettlementList::settlementOf(ListedDay& day, const DayKey& key,
                                               std::int32_t number) {
  const auto [place, isNew] = settlementPlaces_.try_emplace({key, number}, day.settlements.size());
  if (isNew) day.settlements.emplace_back().number = number;
  return day.settlements[place->second];
}

std::string SettlementList::storedStatement() const {
  StoredRange range;
  range.firstAgent = agentPlaces_.begin()->first;
  range.lastAgent = agentPlaces_.rbegin()->first;
  for (const auto& [key, place] : dayPlaces_) {
    if (key.second == kUndated) {
      range.undated = true;
      continue;
    }
    const ado::Date date = ado::Date::fromSerial(static_cast<long>(key.second));
    if (!range.firstDate || date < *range.firstDate) range.firstDate = date;
    if (!range.lastDate || date > *range.lastDate) range.lastDate = date;
  }
  return storedSettlementsStatement(range);
}

void SettlementList::readStored(const ado::Recordset& stored) {
  for (std::size_t row = 0; row < stored.RecordCount(); ++row) {
    const StoredSettlement read = storedSettlement(stored, row);
    const DayKey keyOfDay = dayKey(read.agent, read.date);
    const auto dayPlace = dayPlaces_.find(keyOfDay);
    if (dayPlace == dayPlaces_.end()) continue;
    ListedDay& day = agents_[agentPlaces_.at(keyOfDay.first)].days[dayPlace->second];
    ListedSettlement& settlement = settlementOf(day, keyOfDay, read.number);
    settlement.found = true;
    settlement.changed = !read.base || *read.base != read.commissions;
    settlement.sums.base.add(read.base);
    settlement.sums.vat.add(read.vat);
    settlement.sums.withholding.add(read.withholding);
    settlement.sums.total.add(read.total);
    settlement.sums.commissions.add(read.commissions);
    ++settlements_;
  }
  addUp();
}

void SettlementList::addUp() {
  for (ListedAgent& agent : agents_) {
    for (ListedDay& day : agent.days) {
      for (const ListedSettlement& settlement : day.settlements) day.sums.add(settlement.sums);
      agent.sums.add(day.sums);
    }
    sums_.add(agent.sums);
  }
}

}  // namespace korvantes::office
