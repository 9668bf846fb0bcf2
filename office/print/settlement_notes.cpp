#include "office/print/settlement_notes.h"

#include "outside/plindor/util_formulario.h"

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

/// The amount of a note: the sum of its lines less two cascading discounts, each stage in cents.
constexpr const char* kNetColumn =
    "(SELECT ROUND(CAST(ROUND(CAST(SUM(Lav_Importe) AS money),2)"
    " - ROUND(CAST(SUM(Lav_Importe) * Cav_Dto1 / 100 AS money),2)"
    " - ROUND(CAST((ROUND(CAST(SUM(Lav_Importe) AS money),2)"
    " - ROUND(CAST(SUM(Lav_Importe) * Cav_Dto1 / 100 AS money),2)) * Cav_Dto2 / 100 AS money),2)"
    " AS money),2) FROM Lav WHERE Lav_IdCav = Cav_Id) AS Importe,";

/// Its commission: each line less the same discounts, then the line's percentage. The header is
/// joined again inside, as a server lets no aggregate mix columns of two levels.
constexpr const char* kCommissionColumn =
    "(SELECT SUM(ISNULL(ROUND(CAST("
    "(ROUND(CAST(Lav_Importe - ROUND(CAST(Lav_Importe * Cav_Dto1 / 100 AS money),2) AS money),2)"
    " - ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST(Lav_Importe * Cav_Dto1 / 100 AS money),2)"
    " AS money),2) * Cav_Dto2 / 100 AS money),2)) / 100 * Lav_Comi AS money),2),0))"
    " FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav WHERE Cav_Id = Lcd_IdCav) AS Comision ";

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
  return std::string(kColumns) + kNetColumn + kCommissionColumn + kTables + kFilter +
         std::to_string(settlement) + kOrder;
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
  if (net.units() == 0) return 0;
  const plindor::UtilFormulario util;
  return util.Redondea(util.Redondea(commission.toDouble() * 100, 2) / net.toDouble(), 2);
}

}  // namespace korvantes::office
