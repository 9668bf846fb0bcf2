#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "office/print/amounts.h"
#include "runtime/ado/recordset.h"

namespace korvantes::office {

/// What is added up for settlements. The amounts of a settlement stand on each of its rows and
/// count once; the commissions are those of the rows.
struct SettlementSums {
  Total base, vat, withholding, total, commissions;
  void add(const SettlementSums& more);
};

/// Columns that a list needs, by their position in its recordset.
struct ListColumns {
  std::size_t settlement, agent, agentName, agentTaxNumber, settlementDate, invoice, invoiceDate,
      customerCode, customerName, invoiceAmount, percent, commission, base, vat, withholding, total;
};

struct ListedSettlement {
  std::vector<std::uint32_t> rows;  ///< positions in the recordset, in its order
  SettlementSums sums;
};

struct ListedAgent {
  std::vector<ListedSettlement> settlements;
  SettlementSums sums;
};

/// Rows by invoice, sorted into agents and settlements as each first appears: the rows of two
/// settlements of one day come mixed.
struct SettlementList {
  /// Throws ado::Error naming a column that the rows do not have.
  explicit SettlementList(ado::Recordset invoices);

  const ado::Variant& cell(std::uint32_t row, std::size_t column) const {
    return rows.cell(row, column);
  }

  ado::Recordset rows;
  ListColumns columns;
  std::vector<ListedAgent> agents;
  std::size_t settlements = 0;
  SettlementSums sums;
};

}  // namespace korvantes::office
