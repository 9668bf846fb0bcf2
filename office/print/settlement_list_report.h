#pragma once

#include <string>

#include "office/print/paged_report.h"
#include "office/print/report_texts.h"
#include "office/print/settlement_list.h"

namespace korvantes::office {

/// Settlements by agent with their invoices, subtotals and totals.
class SettlementListReport : public PagedReport {
 public:
  /// @param limits the limits of the search as a sentence, for below the title
  SettlementListReport(SettlementList list, std::string limits, ReportTexts texts,
                       ado::Date printed);

  int number() const override { return 12; }
  std::size_t rows() const override { return list_.rows.RecordCount(); }
  std::string title() const override { return "Liquidaciones de comisiones a agentes"; }

 protected:
  void write(PageFlow& flow) const override;

 private:
  /// The groups in the middle of which the flow is: their headings come again on a new page.
  struct Open {
    const ListedAgent* agent = nullptr;
    const ListedSettlement* settlement = nullptr;
  };

  void writeAgent(PageFlow& flow, const ListedAgent& agent, Open& open) const;
  void writeCaptions(PageFlow& flow) const;
  void writeAgentHeading(PageFlow& flow, const ListedAgent& agent, const char* continued) const;
  void writeSettlementHeading(PageFlow& flow, const ListedSettlement& settlement,
                              const char* continued) const;
  void writeInvoice(PageFlow& flow, std::uint32_t row) const;
  void writeSums(PageFlow& flow, double height, const QString& of,
                 const SettlementSums& sums) const;
  QString numberOf(const ListedSettlement& settlement) const;

  SettlementList list_;
  std::string limits_;
  ReportTexts texts_;
};

}  // namespace korvantes::office
