#pragma once

#include <string>
#include <vector>

#include "office/print/paged_report.h"
#include "office/print/report_texts.h"
#include "office/print/settlement_list.h"

namespace korvantes::office {

/// Settlements by agent and date with their invoices, subtotals and totals.
class SettlementListReport : public PagedReport {
 public:
  /// @param list with what is stored of its settlements
  /// @param limits the limits of the search as a sentence, for below the title
  SettlementListReport(SettlementList list, std::string limits, ReportTexts texts,
                       ado::Date printed);

  int number() const override { return 12; }
  std::size_t rows() const override { return list_.rows().RecordCount(); }
  std::string title() const override { return "Liquidaciones de comisiones a agentes"; }

 protected:
  void write(PageFlow& flow) const override;

 private:
  /// The groups that the flow is inside of: their headings come again on a new page.
  struct Open {
    const ListedAgent* agent = nullptr;
    const ListedDay* day = nullptr;
    const ListedSettlement* settlement = nullptr;
  };

  void writeAgent(PageFlow& flow, const ListedAgent& agent, Open& open) const;
  /// @param after millimetres of what follows its last row
  void writeSettlement(PageFlow& flow, const Open& groups, double after, Open& open) const;
  void writeCaptions(PageFlow& flow) const;
  void writeAgentHeading(PageFlow& flow, const ListedAgent& agent, const char* continued) const;
  void writeSettlementHeading(PageFlow& flow, const ListedDay& day,
                              const ListedSettlement& settlement, const char* continued) const;
  void writeInvoice(PageFlow& flow, std::uint32_t row) const;
  void writeSums(PageFlow& flow, double height, const QString& of,
                 const SettlementSums& sums) const;
  void writeRemarks(PageFlow& flow, const std::vector<QString>& remarks) const;

  /// What there is to say below the sums: why they are not those of the rows, or the stored base
  /// not that of the notes.
  std::vector<QString> remarksOn(const ListedDay& day, const ListedSettlement& settlement) const;
  std::vector<QString> remarksOn(const ListedDay& day) const;
  /// Millimetres of what follows the last row of a settlement, and of a day.
  double closing(const ListedDay& day, const ListedSettlement& settlement) const;
  double closing(const ListedDay& day) const;
  QString dateOf(const ListedDay& day) const;

  SettlementList list_;
  std::string limits_;
  ReportTexts texts_;
};

}  // namespace korvantes::office
