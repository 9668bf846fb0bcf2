// data: the tables, the money rule, and the steps of a settlement as functions of plain values, for
// screens and for programs without one. What they put into a statement is digits, a date or quoted
// text; for anything else they throw ado::ConversionError before they send it.
#pragma once

#include <cstdint>
#include <string>

#include "runtime/ado/connection.h"

namespace korvantes::data {

/// Which delivery notes are offered for settlement: those of an agent, invoiced and in no
/// settlement, whose invoices pass these conditions.
struct PendingFilter {
  std::string agent;         ///< Age_Id, digits
  bool collected = true;     ///< invoices collected in full
  bool uncollected = false;  ///< invoices with nothing collected; with both, any with receipts
  std::string until{};       ///< last invoice date, dd/mm/yyyy; empty for no limit
};

/// Condition on the receipts of an invoice, " AND Fav_Id …"; empty with neither filter.
std::string receiptCondition(bool collected, bool uncollected);

/// The notes offered, newest invoice first: Cav_Id, Cav_NFiscal, Fav_Serie, Fav_Numero, Fav_Fecha,
/// Albaran, Importe.
std::string pendingStatement(const PendingFilter& filter);

/// The notes of a stored settlement that still have an invoice and a customer, with the same
/// columns, in the order that the server gives.
std::string settledStatement(std::int32_t settlement);

/// What is paid for a delivery note. Both amounts are exact, in cents.
struct ListedNote {
  std::int32_t id = 0;      ///< Cav_Id
  ado::Decimal amount;      ///< its net, 0 without lines
  ado::Decimal commission;  ///< its share of the settlement's base
};

/// Reads the current row of either list. Sends one statement, for the commission.
ListedNote listedNote(ado::Connection& connection, const ado::Recordset& row);

}  // namespace korvantes::data
