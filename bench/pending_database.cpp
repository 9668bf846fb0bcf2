#include "bench/pending_database.h"

namespace korvantes::bench {

namespace {

constexpr std::size_t kLinesPerNote = 5;

void fill(ado::Connection& connection, std::size_t notes) {
  connection.BeginTrans();
  connection.Execute("INSERT INTO Age (AGE_ID, AGE_NOM, AGE_REG) VALUES (1, 'Agente', 1)");
  connection.Execute(
      "INSERT INTO Vespara.dbo.Tivas (Tiva_Id, Tiva_reg, Tiva_Art, Tiva_Fecha, Tiva_Iva, Tiva_Ret) "
      "VALUES (1, 1, 1, '01/01/2020', 21.00, 15.00)");
  connection.Execute("INSERT INTO Cli (Cli_Id) VALUES (1)");
  InsertedRows invoices(connection,
                        "INSERT INTO Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli, "
                        "Fav_CliCod, Fav_CliNom, Fav_BIva1) VALUES ");
  InsertedRows receipts(connection, "INSERT INTO Rec (Rec_Id, Rec_IdFac, Rec_Sit) VALUES ");
  InsertedRows headers(
      connection,
      "INSERT INTO Cav (Cav_Id, Cav_Serie, Cav_Numero, Cav_NFiscal, Cav_Dto1, Cav_DTO2, "
      "Cav_IdFactura, Cav_Agente, Cav_Situa) VALUES ");
  InsertedRows lines(connection,
                     "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES ");
  std::size_t lineId = 0;
  for (std::size_t note = 1; note <= notes; ++note) {
    const std::string id = std::to_string(note);
    const std::string day = std::to_string(101 + note % 28).substr(1);
    const std::string month = std::to_string(101 + note % 12).substr(1);
    invoices.add(id + ", 'A', " + id + ", '" + day + "/" + month + "/2025', 1, 1, 'Cliente " + id +
                 "', " + cents(note * 37));
    receipts.add(id + ", " + id + ", 5");
    headers.add(id + ", 'AL', " + std::to_string(note % 99999) + ", 'Cliente fiscal " + id + "', " +
                std::to_string(note % 20) + ", " + std::to_string(note % 6) + ", " + id + ", 1, 2");
    for (std::size_t line = 0; line < kLinesPerNote; ++line) {
      ++lineId;
      lines.add(std::to_string(lineId) + ", " + id + ", " + cents(500 + lineId * 7919 % 100000) +
                ", " + std::to_string(3 + lineId % 8) + ".5");
    }
  }
  for (InsertedRows* rows : {&invoices, &receipts, &headers, &lines}) rows->flush();
  connection.CommitTrans();
}

}  // namespace

PendingDatabase::PendingDatabase(std::size_t notes) : notes_(notes) {
  fill(*connection(), notes);
}

void PendingDatabase::freeAllNotes() {
  connection()->Execute("UPDATE Cav SET Cav_IdLca = Null WHERE Cav_Id > 0");
  connection()->Execute("DELETE FROM Lcd WHERE Lcd_IdLca > 0");
  connection()->Execute("DELETE FROM Lca WHERE Lca_Id > 0");
}

PendingDatabase& pendingDatabase(std::size_t notes) {
  return databaseOf<PendingDatabase>(notes);
}

}  // namespace korvantes::bench
