#pragma once

#include <cstdint>
#include <string>

#include "office/print/amounts.h"
#include "runtime/ado/recordset.h"

namespace korvantes::office {

/// A delivery note of a settlement, with today's amounts of its lines.
struct SettledNote {
  bool exists = false;      ///< the sales application may have deleted it
  bool hasInvoice = false;  ///< or its invoice
  ado::Variant invoice;     ///< key
  ado::Variant invoiceSeries, invoiceNumber, invoiceDate;
  ado::Variant noteSeries, noteNumber;
  ado::Variant customer;
  ado::Decimal net, commission;  ///< cents; 0 without lines

  /// The commission as a percentage of the net amount, as the settlement screen shows it; 0 when
  /// the net amount is 0.
  double percent() const;
};

/// The statement that gives the delivery notes of a settlement, those of one invoice together,
/// then those without an invoice, and last those that are gone.
std::string notesStatement(std::int64_t settlement);

/// A row of that statement's result, from 0.
SettledNote settledNote(const ado::Recordset& rows, std::size_t row);

}  // namespace korvantes::office
