#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "runtime/ado/recordset.h"

namespace korvantes::office {

/// Settlements from one agent to another and from one date to another, and those without a date.
struct StoredRange {
  std::int32_t firstAgent = 0, lastAgent = 0;
  std::optional<ado::Date> firstDate, lastDate;  ///< both or neither
  bool undated = false;
};

/// A settlement with its amounts in cents; empty for Null.
struct StoredSettlement {
  std::int32_t number = 0;
  ado::Variant agent, date;
  std::optional<ado::Decimal> base, vat, withholding, total;
  ado::Decimal commissions;  ///< what its own delivery notes earn today
};

/// The statement that gives the settlements of a range, ordered by their numbers. Its length does
/// not depend on how many there are.
std::string storedSettlementsStatement(const StoredRange& range);

/// A row of that statement's result, from 0.
StoredSettlement storedSettlement(const ado::Recordset& rows, std::size_t row);

}  // namespace korvantes::office
