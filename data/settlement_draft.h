#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "data/money_rule.h"

namespace korvantes::data {

/// The amounts of a settlement, exact, in cents.
struct SettlementAmounts {
  ado::Decimal base;         ///< sum of the commissions
  ado::Decimal vat;          ///< a percentage of the base
  ado::Decimal withholding;  ///< a percentage of the base
  ado::Decimal total;        ///< base plus VAT less withholding
};

/// VAT and withholding of a base, and the total; percentages may have any scale. Throws
/// ado::ConversionError for an amount that does not fit.
SettlementAmounts settlementAmounts(const ado::Decimal& base, const ado::Decimal& vatPercent,
                                    const ado::Decimal& withholdingPercent);

/// A delivery note that goes into a settlement.
struct NoteToSettle {
  std::int32_t id = 0;  ///< Cav_Id
  std::string name;     ///< series and number, for messages: "A/17"
};

/// A settlement to be stored.
struct SettlementDraft {
  std::int32_t replaces = 0;  ///< stored settlement that it replaces; 0 for none
  std::int32_t agent = 0;     ///< Age_Id
  std::string date;           ///< dd/mm/yyyy
  std::string until;          ///< last invoice date that was offered; empty for none
  bool collected = false, uncollected = false;  ///< filters under which notes were offered
  std::int32_t rateRow = 0;                     ///< Tiva_Id
  std::string remarks;
  ado::Decimal vatPercent, withholdingPercent;
  SettlementAmounts amounts;
  std::vector<NoteToSettle> notes;  ///< if empty, nothing is stored and what it replaces is removed
};

}  // namespace korvantes::data
