// The sample database: what a newcomer plays with, and what tests and demonstrations lean on. It is
// the same on every machine and at every time.
#pragma once

#include "runtime/ado/connection.h"

namespace korvantes::sample {

/// All of the functions below send their statements within the caller's transaction, if any, and
/// throw ado::Error.

/// Fills the empty ones among the shared tables: coded lists and rates. True if there was one.
bool loadSharedSample(ado::Connection& connection);

/// Fills the company's empty tables: agents, customers, invoices with receipts, delivery notes,
/// orders and some stored settlements.
void loadCompanySample(ado::Connection& connection);

/// Whether one of the shared tables has no row.
bool lacksSharedRows(ado::Connection& connection);

/// Whether the company's tables hold the sample, which is told by its customers: no screen changes
/// them.
bool isSample(ado::Connection& connection);

}  // namespace korvantes::sample
