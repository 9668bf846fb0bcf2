#pragma once

#include <cstdint>
#include <map>

#include "runtime/ado/connection.h"

namespace korvantes::report {

/// Fills empty tables with random settlements of twelve agents, no two of one agent on one day,
/// among them old ones without a date and without their agent. Their invoices have one to three
/// delivery notes, of any sign, with Nulls wherever a column allows them. The same seed gives the
/// same rows.
///
/// Some notes have changed since they were settled, or have lost their invoice or its customer.
/// @return by settlement, the cents of commission that its notes no longer show; 0 for most
std::map<int, std::int64_t> fillRandomDatabase(ado::Connection& connection, int settlements,
                                               unsigned seed);

}  // namespace korvantes::report
