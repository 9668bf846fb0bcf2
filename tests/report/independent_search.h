// The search of settlements worked out a second time: plain rows of single tables, joined, ordered
// and reckoned here by whole numbers alone. What the statements must give.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "report/search_statements.h"
#include "runtime/ado/connection.h"

namespace korvantes::report {

struct Limits {
  int agent = 0;  ///< 0 for all
  std::optional<ado::Date> from, to;
};

/// A row as text: every field by its name, amounts with four decimals.
std::string textOf(const ado::Recordset& rows, std::size_t row);

/// Rows in their order, in groups: those of one group tie, and may come in any order.
using Groups = std::vector<std::vector<std::string>>;

class RawTables {
 public:
  explicit RawTables(ado::Connection& connection);

  Groups search(Forma shape, bool byDate, const Limits& limits) const;
  /// Sum of the bases of all settlements within the limits, in cents.
  std::int64_t totalCents(const Limits& limits) const;

 private:
  using Record = std::map<std::string, ado::Variant>;
  using ById = std::map<int, Record>;
  struct Row;

  static bool within(const Record& settlement, const Limits& limits);
  void addNotes(std::vector<Row>& rows, const Record& head, Forma shape, bool byDate) const;
  void addInvoices(std::vector<Row>& rows, const std::vector<Record>& notes, bool byDate) const;

  std::vector<Record> settlements_;
  ById agents_, notes_, invoices_, customers_;
  std::map<int, std::vector<int>> notesOf_;     ///< by settlement
  std::map<int, std::vector<Record>> linesOf_;  ///< by note
};

}  // namespace korvantes::report
