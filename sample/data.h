// The sample database: what a newcomer plays with, and what tests and demonstrations lean on. It is
// the same on every machine and at every time.
#pragma once

#include "runtime/ado/connection.h"

namespace korvantes::sample {

/// Fills empty tables: coded lists, rates, agents, customers, invoices with receipts, delivery
/// notes, orders and some stored settlements. Sends INSERT statements, within the caller's
/// transaction. Throws ado::Error.
void loadSampleData(ado::Connection& connection);

}  // namespace korvantes::sample
