#include "sample/documents.h"
#include "sample/rows.h"

namespace korvantes::sample {
namespace {

constexpr int kMoneyScale = ado::Decimal::kMoneyScale;
constexpr int kPercentScale = 2;
constexpr int kCommissionScale = 3;
constexpr int kCentScale = 2;

void loadInvoices(ado::Connection& connection, const std::vector<SampleInvoice>& invoices) {
  std::vector<Row> rows, receipts;
  for (const SampleInvoice& it : invoices) {
    rows.push_back({it.id, it.series, it.number, it.date, it.customerId, it.customerCode,
                    it.customer, decimalOrNull(it.bases[0], kCentScale),
                    decimalOrNull(it.bases[1], kCentScale),
                    decimalOrNull(it.bases[2], kCentScale)});
    for (const char state : it.receipts) {
      const int id = static_cast<int>(receipts.size()) + 1;
      receipts.push_back({id, it.id, state - '0', it.series, it.number});
    }
  }
  insertRows(connection, "Fav",
             "Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli, Fav_CliCod, Fav_CliNom, "
             "Fav_BIva1, Fav_Biva2, Fav_Biva3",
             rows);
  insertRows(connection, "Rec", "Rec_Id, Rec_IdFac, Rec_Sit, Rec_Serie, Rec_Numero", receipts);
}

void loadNotes(ado::Connection& connection, const std::vector<SampleNote>& notes) {
  std::vector<Row> rows, lines;
  for (const SampleNote& it : notes) {
    rows.push_back({it.id, orNull(it.series), it.number, it.customer,
                    decimalOrNull(it.discount1, kPercentScale),
                    decimalOrNull(it.discount2, kPercentScale), orNull(it.invoice), it.agent,
                    it.state, orNull(it.settlement)});
    for (const SampleLine& line : it.lines) {
      const int id = static_cast<int>(lines.size()) + 1;
      lines.push_back({id, it.id, decimalOrNull(line.amount, kMoneyScale),
                       decimalOrNull(line.commission, kCommissionScale), line.text});
    }
  }
  insertRows(connection, "Cav",
             "Cav_Id, Cav_Serie, Cav_Numero, Cav_NFiscal, Cav_Dto1, Cav_DTO2, Cav_IdFactura, "
             "Cav_Agente, Cav_Situa, Cav_IdLca",
             rows);
  insertRows(connection, "Lav", "Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi, Lav_Des", lines);
}

void loadOrders(ado::Connection& connection, const std::vector<SampleOrder>& orders) {
  std::vector<Row> rows, lines;
  for (const SampleOrder& it : orders) {
    rows.push_back({it.id, decimalOrNull(it.discount1, kPercentScale),
                    decimalOrNull(it.discount2, kPercentScale)});
    for (const SampleLine& line : it.lines) {
      const int id = static_cast<int>(lines.size()) + 1;
      lines.push_back({id, it.id, decimalOrNull(line.amount, kMoneyScale),
                       decimalOrNull(line.commission, kCommissionScale)});
    }
  }
  insertRows(connection, "PedCa", "PedCa_Id, PedCa_Dto1, PEDCA_DTO2", rows);
  insertRows(connection, "PedLi", "LiPed_Id, PedLi_IdPedca, PedLi_Importe, PedLi_Comi", lines);
}

}  // namespace

void loadDocuments(ado::Connection& connection, const SampleDocuments& documents) {
  loadInvoices(connection, documents.invoices);
  loadNotes(connection, documents.notes);
  loadOrders(connection, documents.orders);
}

}  // namespace korvantes::sample
