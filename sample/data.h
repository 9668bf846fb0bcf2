// The sample database, for new users, tests and demonstrations. It is always the same, on every
// machine.
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

/// Whether the company's tables hold the sample, recognised by its customers, which no screen
/// changes.
bool isSample(ado::Connection& connection);

}  // namespace korvantes::sample
