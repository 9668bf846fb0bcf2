#pragma once

#include <cstdint>

#include "runtime/ado/recordset.h"

namespace korvantes::office {

/// The stored header of a settlement. Everything but its number may be Null.
struct Settlement {
  std::int64_t number = 0;
  ado::Variant agent, agentName, agentTaxNumber;
  ado::Variant date, limitDate;
  bool collected = false, pending = false;
  ado::Variant base, vatRate, vat, withholdingRate, withholding, total;
  ado::Variant remarks;
};

/// Reads the current row. Throws ado::Error naming a column that is missing.
Settlement readSettlement(const ado::Recordset& row);

}  // namespace korvantes::office
