#include "bench/pending_database.h"

#include <algorithm>
#include <filesystem>
#include <map>
#include <stdexcept>
#include <stdlib.h>

#include "data/schema.h"
#include "engines/sqlite/sqlite_connection.h"
#include "engines/tsql/compiler.h"

namespace korvantes::bench {

namespace {

constexpr std::size_t kLinesPerNote = 5;
constexpr std::size_t kRowsPerInsert = 50;

/// Sends "INSERT INTO table VALUES (…),(…)" statements of a moderate length.
class Rows {
 public:
  Rows(ado::Connection& connection, std::string head)
      : connection_(connection), head_(std::move(head)) {}
  ~Rows() = default;
  void add(const std::string& row) {
    text_ += (text_.empty() ? head_ : std::string(", ")) + "(" + row + ")";
    if (++count_ % kRowsPerInsert == 0) flush();
  }
  void flush() {
    if (!text_.empty()) connection_.Execute(text_);
    text_.clear();
  }

 private:
  ado::Connection& connection_;
  std::string head_, text_;
  std::size_t count_ = 0;
};

std::string cents(std::size_t value) {
  const std::string tail = std::to_string(100 + value % 100).substr(1);
  return std::to_string(value / 100) + "." + tail;
}

void fill(ado::Connection& connection, std::size_t notes) {
  connection.BeginTrans();
  connection.Execute("INSERT INTO Age (AGE_ID, AGE_NOM, AGE_REG) VALUES (1, 'Agente', 1)");
  connection.Execute(
      "INSERT INTO Vespara.dbo.Tivas (Tiva_Id, Tiva_reg, Tiva_Art, Tiva_Fecha, Tiva_Iva, Tiva_Ret) "
      "VALUES (1, 1, 1, '01/01/2020', 21.00, 15.00)");
  connection.Execute("INSERT INTO Cli (Cli_Id) VALUES (1)");
  Rows invoices(connection,
                "INSERT INTO Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli, "
                "Fav_CliCod, Fav_CliNom, Fav_BIva1) VALUES ");
  Rows receipts(connection, "INSERT INTO Rec (Rec_Id, Rec_IdFac, Rec_Sit) VALUES ");
  Rows headers(connection,
               "INSERT INTO Cav (Cav_Id, Cav_Serie, Cav_Numero, Cav_NFiscal, Cav_Dto1, Cav_DTO2, "
               "Cav_IdFactura, Cav_Agente, Cav_Situa) VALUES ");
  Rows lines(connection, "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES ");
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
  for (Rows* rows : {&invoices, &receipts, &headers, &lines}) rows->flush();
  connection.CommitTrans();
}

}  // namespace

PendingDatabase::PendingDatabase(std::size_t notes) : notes_(notes) {
  std::string pattern = std::filesystem::temp_directory_path() / "korvantes-bench-XXXXXX";
  if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
  folder_ = pattern;
  path_ = folder_ + "/bench.db";
  connection_ = std::make_shared<sqlite::SqliteConnection>(path_, sqlite::OpenOptions{true});
  for (const std::string& statement : tsql::splitStatements(data::kSchema))
    connection_->Execute(statement);
  fill(*connection_, notes);
}

PendingDatabase::~PendingDatabase() {
  connection_.reset();
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void PendingDatabase::freeAllNotes() {
  connection_->Execute("UPDATE Cav SET Cav_IdLca = Null WHERE Cav_Id > 0");
  connection_->Execute("DELETE FROM Lcd WHERE Lcd_IdLca > 0");
  connection_->Execute("DELETE FROM Lca WHERE Lca_Id > 0");
}

PendingDatabase& pendingDatabase(std::size_t notes) {
  static std::map<std::size_t, std::unique_ptr<PendingDatabase>> databases;
  auto& database = databases[notes];
  if (!database) database = std::make_unique<PendingDatabase>(notes);
  return *database;
}

}  // namespace korvantes::bench
