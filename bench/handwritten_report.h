#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korvantes::bench {

/// The search of stored settlements as an engineer in a hurry would write it straight against the C
/// API of sqlite3: the same joins in the same order, the commission in plain C over whole numbers,
/// the invoices merged while the rows are read.
class HandwrittenReport {
 public:
  /// What both shapes show of a settlement and its invoice. Amounts in units of money.
  struct Head {
    std::int64_t invoice = 0, settlement = 0, agent = 0, customerCode = 0, number = 0;
    std::string agentName, settled, document, invoiced, customer, series, taxNumber;
    std::int64_t base = 0, vat = 0, withheld = 0, total = 0, gross = 0;
  };
  struct InvoiceRow : Head {
    std::int64_t commission = 0;
    std::optional<double> percentage;
  };
  struct LineRow : Head {
    std::string note, text;
    std::int64_t net = 0, rate = 0, commission = 0;
  };

  /// Opens the database a second time.
  explicit HandwrittenReport(const std::string& path);
  ~HandwrittenReport();
  HandwrittenReport(const HandwrittenReport&) = delete;
  HandwrittenReport& operator=(const HandwrittenReport&) = delete;

  std::int64_t total();
  std::vector<InvoiceRow> byInvoice();
  std::vector<LineRow> byLine();

 private:
  struct Impl;
  std::unique_ptr<Impl> impl_;
};

}  // namespace korvantes::bench
