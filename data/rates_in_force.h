#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "data/money_rule.h"
#include "runtime/ado/connection.h"

namespace korvantes::data {

/// VAT and withholding of a tax regime, in percent; Null as stored.
struct Rates {
  std::int32_t row = 0;  ///< Tiva_Id
  OptionalDecimal vat, withholding;
};

/// Lca_IdTiva of a settlement whose regime has no rates on its date.
constexpr std::int32_t kNoRateRow = 1;

/// The statement for the newest rates of a regime whose date is not after the given one.
/// @param date dd/mm/yyyy; if empty, the newest rates of all
std::string ratesStatement(std::int32_t regime, std::string_view date);

/// Runs it. Empty if the regime has no rates on that date. Throws what the connection throws; the
/// rates are then unknown, which is not the same as having none.
std::optional<Rates> ratesInForce(ado::Connection& connection, std::int32_t regime,
                                  std::string_view date);

/// Tax regime of an agent, 1 if it is Null. Throws ado::Error of kind Gone if the agent does not
/// exist.
std::int32_t regimeOf(ado::Connection& connection, std::int32_t agent);

/// The regime stored with an agent; Null counts as 1.
std::int32_t regimeFrom(const ado::Variant& stored);

}  // namespace korvantes::data
