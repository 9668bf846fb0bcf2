#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "office/print/amounts.h"
#include "runtime/ado/recordset.h"

namespace korvantes::office {

/// What is added up for settlements: their amounts as they are stored, and the commissions that
/// their own delivery notes earn today.
struct SettlementSums {
  Total base, vat, withholding, total, commissions;
  void add(const SettlementSums& more);
};

/// Columns that a list needs, by their position in its recordset.
struct ListColumns {
  std::size_t settlement, agent, agentName, agentTaxNumber, settlementDate, invoice, invoiceDate,
      customerCode, customerName, invoiceAmount, percent, commission;
};

struct ListedSettlement {
  std::int32_t number = 0;
  /// Positions in the recordset, in its order. None where another settlement of the day took over
  /// its rows: an invoice has one row, whatever the number of settlements of a day that share it.
  std::vector<std::uint32_t> rows;
  Total commissionsOfRows;
  bool found = false;  ///< in the database; else its sums are 0
  SettlementSums sums;
  bool changed = false;  ///< its notes no longer earn its stored base
};

/// The settlements of an agent on one date.
struct ListedDay {
  ado::Variant date;  ///< Null for none
  std::vector<ListedSettlement> settlements;
  Total commissionsOfRows;
  SettlementSums sums;
};

struct ListedAgent {
  std::uint32_t firstRow = 0;
  std::vector<ListedDay> days;
  SettlementSums sums;
};

/// Rows by invoice, sorted into agents, days and settlements as each first appears, and all
/// settlements of those days as they are stored.
class SettlementList {
 public:
  /// Throws ado::Error naming a column that the rows do not have.
  explicit SettlementList(ado::Recordset invoices);

  /// The statement that gives the settlements of the agents and dates in the rows, and perhaps
  /// others. Only for a list that is not empty.
  std::string storedStatement() const;
  /// Takes what the statement gave: those that share agent and date with a row, each once.
  void readStored(const ado::Recordset& stored);

  const ado::Recordset& rows() const { return rows_; }
  const ListColumns& columns() const { return columns_; }
  const ado::Variant& cell(std::uint32_t row, std::size_t column) const {
    return rows_.cell(row, column);
  }

  const std::vector<ListedAgent>& agents() const { return agents_; }
  std::size_t settlements() const { return settlements_; }  ///< found in the database
  const SettlementSums& sums() const { return sums_; }

 private:
  using AgentKey = std::int32_t;
  using DayKey = std::pair<AgentKey, std::int64_t>;
  using SettlementKey = std::pair<DayKey, std::int32_t>;
  static DayKey dayKey(const ado::Variant& agent, const ado::Variant& date);

  /// The settlement in its day; added when it is not there yet.
  ListedSettlement& settlementOf(ListedDay& day, const DayKey& key, std::int32_t number);
  void addUp();

  ado::Recordset rows_;
  ListColumns columns_;
  std::vector<ListedAgent> agents_;
  std::map<AgentKey, std::size_t> agentPlaces_;
  std::map<DayKey, std::size_t> dayPlaces_;
  std::map<SettlementKey, std::size_t> settlementPlaces_;
  std::size_t settlements_ = 0;
  SettlementSums sums_;
};

}  // namespace korvantes::office
