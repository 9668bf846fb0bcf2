#pragma once

#include "runtime/ado/connection.h"

namespace korvantes::report {

/// Fills empty tables with random settlements of twelve agents, no two of one agent on one day,
/// some without a date or without their agent. Their invoices have one to three delivery notes, of
/// any sign, with Nulls wherever a column allows them; some notes have lost their invoice or its
/// customer. The same seed gives the same rows.
void fillRandomDatabase(ado::Connection& connection, int settlements, unsigned seed);

}  // namespace korvantes::report
