#pragma once

#include <optional>
#include <vector>

#include "runtime/ado/connection.h"
#include "runtime/ado/date.h"

namespace korvantes::sample {

/// Rates of VAT and withholding of a regime from a day on, in hundredths of a percent.
struct Rate {
  int id;
  int regime;
  int article;  ///< kind of rate; settlements read kind 1 alone
  ado::Date from;
  int vat;
  int withholding;
};

const std::vector<Rate>& sampleRates();

/// The rate of a regime in force on a day; without a day its newest one. Nothing where the regime
/// has none by then.
std::optional<Rate> rateInForce(int regime, const std::optional<ado::Date>& day);

/// Writes provinces, countries, coded lists and rates, each into its table unless that has rows.
/// True if anything was written.
bool loadLookups(ado::Connection& connection);

/// Whether one of those tables has no row.
bool lacksLookups(ado::Connection& connection);

}  // namespace korvantes::sample
