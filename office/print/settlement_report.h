#pragma once

#include <optional>

#include "office/print/amounts.h"
#include "office/print/paged_report.h"
#include "office/print/report_texts.h"
#include "office/print/settlement.h"
#include "runtime/ado/recordset.h"

namespace korvantes::office {

struct SettledNote;

/// One settlement with its delivery notes, as it goes to the agent.
class SettlementReport : public PagedReport {
 public:
  /// @param settlement empty if it does not exist: the report says so
  /// @param notes the result of notesStatement
  SettlementReport(std::optional<Settlement> settlement, ado::Recordset notes, ReportTexts texts,
                   ado::Date printed);

  int number() const override { return 11; }
  std::size_t rows() const override { return rows_; }
  std::string title() const override;

 protected:
  void write(PageFlow& flow) const override;

 private:
  void writeHead(PageFlow& flow) const;
  void writeNotes(PageFlow& flow) const;
  void writeNote(PageFlow& flow, const SettledNote& note) const;
  void writeInvoiceTotal(PageFlow& flow, std::size_t first, std::size_t end) const;
  void writeTotals(PageFlow& flow) const;
  void writeRemarks(PageFlow& flow) const;
  /// The row after the last note of the invoice whose first note this is.
  std::size_t endOfInvoice(std::size_t first) const;

  std::optional<Settlement> settlement_;
  ado::Recordset notes_;
  ReportTexts texts_;
  std::size_t rows_;
  Total net_, commission_;
};

}  // namespace korvantes::office
