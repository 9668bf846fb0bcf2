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

/// Values by the name of their field, in lower case.
using Record = std::map<std::string, ado::Variant>;
Record recordOf(const ado::Recordset& rows, std::size_t row);
/// The fields of `rows` from a record that has them all; amounts with four decimals.
std::string textOf(const Record& record, const ado::Recordset& rows);

/// Rows in their order, in groups: those of one group tie, and may come in any order.
using Groups = std::vector<std::vector<Record>>;

class RawTables {
 public:
  explicit RawTables(ado::Connection& connection);

  Groups search(Forma shape, bool byDate, const Limits& limits);
  /// Sum of the bases of all settlements within the limits, in cents.
  std::int64_t totalCents(const Limits& limits) const;

 private:
  using ById = std::map<int, Record>;

  void addNotes(std::vector<Record>& rows, const Record& settlement, Forma shape);

  std::vector<Record> settlements_;
  ById agents_, notes_, invoices_, customers_;
  std::map<int, std::vector<int>> notesOf_;     ///< by settlement
  std::map<int, std::vector<Record>> linesOf_;  ///< by note
};

}  // namespace korvantes::report
