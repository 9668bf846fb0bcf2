#include "office/print/stored_settlements.h"

#include "data/money_rule_sql.h"
#include "office/print/amounts.h"

namespace korvantes::office {

namespace {

/// Columns by position, in the order of the statement.
enum Position : std::size_t {
  kNumber,
  kAgent,
  kDate,
  kBase,
  kVat,
  kWithholding,
  kTotal,
  kCommissions
};

constexpr const char* kColumns =
    "SELECT Lca_Id,Lca_IdAg,Lca_Fecha,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total,";

// All notes of the settlement, also those that lost their invoice and are in no row of a search.
constexpr const char* kOpenSum = "(SELECT SUM(";
constexpr const char* kCloseSum =
    ") FROM Lcd INNER JOIN Cav ON Cav_Id = Lcd_IdCav INNER JOIN Lav ON Lav_IdCav = Cav_Id "
    "WHERE Lcd_IdLca = Lca_Id) AS Comision ";

constexpr const char* kOfAgents = "FROM Lca WHERE Lca_IdAg BETWEEN ";
constexpr const char* kAnd = " AND ";
constexpr const char* kOfDates = "Lca_Fecha BETWEEN '";
constexpr const char* kToDate = "' AND '";
constexpr const char* kUndated = "Lca_Fecha IS NULL";
constexpr const char* kOrder = " ORDER BY Lca_Id";

std::string datesOf(const StoredRange& range) {
  if (!range.firstDate) return kUndated;
  const std::string between =
      kOfDates + range.firstDate->dayFirst() + kToDate + range.lastDate->dayFirst() + "'";
  return range.undated ? "(" + between + " OR " + kUndated + ")" : between;
}

}  // namespace

std::string storedSettlementsStatement(const StoredRange& range) {
  return kColumns + std::string(kOpenSum) + data::sql::noteLineCommission() + kCloseSum +
         kOfAgents + std::to_string(range.firstAgent) + kAnd + std::to_string(range.lastAgent) +
         kAnd + datesOf(range) + kOrder;
}

StoredSettlement storedSettlement(const ado::Recordset& rows, std::size_t row) {
  const auto cell = [&](Position position) -> const ado::Variant& {
    return rows.cell(row, position);
  };
  StoredSettlement read;
  read.number = cell(kNumber).asLong();
  read.agent = cell(kAgent);
  read.date = cell(kDate);
  read.base = inCents(cell(kBase));
  read.vat = inCents(cell(kVat));
  read.withholding = inCents(cell(kWithholding));
  read.total = inCents(cell(kTotal));
  read.commissions = inCents(cell(kCommissions)).value_or(ado::Decimal(0, 2));
  return read;
}

}  // namespace korvantes::office
