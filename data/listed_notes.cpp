#include "data/listed_notes.h"

#include "data/commission_rule.h"
#include "data/money_rule_sql.h"
#include "data/statement_values.h"

namespace korvantes::data {

namespace {

constexpr int kCents = 2;

// Conditions on the receipts of the invoice: both filters, collected, not collected.
constexpr const char* kBoth =
    " AND Fav_Id  in (SELECT Rec_idfac FROM REc where Rec_IdFac = Fav_Id and  Rec_Sit <= 5 AND "
    "Rec_Sit <> 8)";
constexpr const char* kInvoiceIn = " AND Fav_Id IN ";
constexpr const char* kReceipts =
    "(SELECT Rec_IdFac  FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit <> 8 GROUP BY Rec_IdFac ";
constexpr const char* kCollected =
    "HAVING COUNT(Rec_Id)= (SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id AND "
    "Rec_Sit=5))";
constexpr const char* kUncollected =
    "HAVING COUNT(Rec_Id)= (SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit "
    "IN(1,2,3,4)))";

constexpr const char* kSelectPending =
    "SELECT Cav_Id,Cav_NFiscal,Fav_Serie,Fav_Numero,Fav_Fecha, (Cav_Serie + '/' + cast(Cav_Numero "
    "as varchar(5))) as Albaran, ";
constexpr const char* kPendingAmount = "FROM laV where laV_Idcav= cav_id) as Importe ";
constexpr const char* kFromPending = "FROM Cav ";
constexpr const char* kJoinInvoice = "INNER JOIN Fav ON  Fav_Id = Cav_IdFactura ";
constexpr const char* kFree = "WHERE (Cav_IdLca Is Null Or Cav_IdLca = 0) And Cav_Situa = 2 ";
constexpr const char* kOfAgent = "AND Cav_Agente = ";
constexpr const char* kUntil = " AND Fav_Fecha <= '";
constexpr const char* kEndOfDate = "'";
constexpr const char* kNewestFirst = " order by Fav_Fecha desc ";

constexpr const char* kSelectSettled =
    "SELECT Cav_Id,Cav_NFiscal,Fav_Serie,Fav_Numero,Fav_Fecha, (Cav_Serie + '/' + cast(Cav_Numero "
    "as varchar(5))) as Albaran,";
constexpr const char* kSettledAmount = "FROM laV where laV_Idcav= cav_id) as importe ";
constexpr const char* kFromSettled = "FROM lcd ";
constexpr const char* kJoinNote = "INNER JOIN Cav ON Cav_Id = Lcd_IdCav ";
constexpr const char* kJoinSettledInvoice = "INNER JOIN Fav ON Fav_Id = Cav_IdFactura ";
constexpr const char* kJoinCustomer = "INNER JOIN Cli ON Cli_Id = Fav_IdCli ";
constexpr const char* kOfSettlement = "WHERE Lcd_IdLca = ";

}  // namespace

std::string receiptCondition(bool collected, bool uncollected) {
  if (collected && uncollected) return kBoth;
  if (collected) return std::string(kInvoiceIn) + kReceipts + kCollected;
  if (uncollected) return std::string(kInvoiceIn) + kReceipts + kUncollected;
  return {};
}

std::string pendingStatement(const PendingFilter& filter) {
  std::string dateCondition;
  if (!filter.until.empty()) dateCondition = kUntil + dateOf(filter.until) + kEndOfDate;
  return std::string(kSelectPending) + std::string(sql::kNoteNet) + kPendingAmount + kFromPending +
         kJoinInvoice + kFree + kOfAgent + digitsOf(filter.agent) +
         receiptCondition(filter.collected, filter.uncollected) + dateCondition + kNewestFirst;
}

std::string settledStatement(std::int32_t settlement) {
  return std::string(kSelectSettled) + std::string(sql::kNoteNet) + kSettledAmount + kFromSettled +
         kJoinNote + kJoinSettledInvoice + kJoinCustomer + kOfSettlement +
         std::to_string(settlement);
}

ListedNote listedNote(ado::Connection& connection, const ado::Recordset& row) {
  ListedNote note;
  note.id = row.Collect("Cav_Id").asLong();
  note.commission = comisionExacta(connection, kAlbaran, note.id, 0).rescaled(kCents);
  const ado::Variant& amount = row.Collect("Importe");
  note.amount = (amount.isNull() ? ado::Decimal() : amount.asDecimal()).rescaled(kCents);
  return note;
}

}  // namespace korvantes::data
