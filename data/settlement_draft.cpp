#include "data/settlement_draft.h"

namespace korvantes::data {

SettlementAmounts settlementAmounts(const ado::Decimal& base, const ado::Decimal& vatPercent,
                                    const ado::Decimal& withholdingPercent) {
  SettlementAmounts amounts{
      base, percentageOf(base, vatPercent), percentageOf(base, withholdingPercent), {}};
  amounts.total = base + amounts.vat - amounts.withholding;
  return amounts;
}

}  // namespace korvantes::data
