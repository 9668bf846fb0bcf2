#include "office/print/settlement_notes.h"

#include "data/money_rule.h"
#include "data/money_rule_sql.h"

namespace korvantes::office {

namespace {

/// Columns by position, in the order of the statement.
enum Position : std::size_t {
  kNote,
  kNoteSeries,
  kNoteNumber,
  kFiscalName,
  kInvoice,
  kInvoiceSeries,
  kInvoiceNumber,
  kInvoiceDate,
  kInvoiceName,
  kNet,
  kCommission
};

constexpr const char* kColumns =
    "SELECT Cav_Id,Cav_Serie,Cav_Numero,Cav_NFiscal,Fav_Id,Fav_Serie,Fav_Numero,Fav_Fecha,"
    "Fav_CliNom,";

// The amount of a note, and its commission. For the latter the header is joined again inside, as a
// server lets no aggregate mix columns of two levels.
constexpr const char* kNetOfLines = "FROM Lav WHERE Lav_IdCav = Cav_Id) AS Importe,";
constexpr const char* kOpenSum = "(SELECT SUM(";
constexpr const char* kCloseSum =
    ") FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav WHERE Cav_Id = Lcd_IdCav) AS Comision ";

constexpr const char* kTables =
    "FROM Lcd LEFT JOIN Cav ON Cav_Id = Lcd_IdCav LEFT JOIN Fav ON Fav_Id = Cav_IdFactura ";

constexpr const char* kFilter = "WHERE Lcd_IdLca = ";

constexpr const char* kOrder =
    " ORDER BY CASE WHEN Cav_Id IS NULL THEN 2 WHEN Fav_Id IS NULL THEN 1 ELSE 0 END,"
    "Fav_Fecha,Fav_Serie,Fav_Numero,Fav_Id,"
    "Cav_Serie,Cav_Numero,Lcd_IdCav";

bool isBlank(const ado::Variant& text) {
  return text.isNull() || text.text().find_first_not_of(' ') == std::string::npos;
}

ado::Decimal amount(const ado::Variant& value) {
  return inCents(value).value_or(ado::Decimal(0, 2));
}

}  // namespace

std::string notesStatement(std::int64_t settlement) {
  std::string statement(kColumns);
  statement.append(data::sql::kNoteNet).append(kNetOfLines);
  statement.append(kOpenSum).append(data::sql::noteLineCommission()).append(kCloseSum);
  return statement.append(kTables).append(kFilter) + std::to_string(settlement) + kOrder;
}

SettledNote settledNote(const ado::Recordset& rows, std::size_t row) {
  const auto cell = [&](Position position) -> const ado::Variant& {
    return rows.cell(row, position);
  };
  SettledNote note;
  note.exists = !cell(kNote).isNull();
  note.hasInvoice = !cell(kInvoice).isNull();
  note.invoice = cell(kInvoice);
  note.invoiceSeries = cell(kInvoiceSeries);
  note.invoiceNumber = cell(kInvoiceNumber);
  note.invoiceDate = cell(kInvoiceDate);
  note.noteSeries = cell(kNoteSeries);
  note.noteNumber = cell(kNoteNumber);
  note.customer = isBlank(cell(kFiscalName)) ? cell(kInvoiceName) : cell(kFiscalName);
  note.net = amount(cell(kNet));
  note.commission = amount(cell(kCommission));
  return note;
}

double SettledNote::percent() const {
  return data::commissionPercent(commission, net);
}

}  // namespace korvantes::office
