#include "bench/handwritten.h"

#include <cstdio>
#include <sqlite3.h>
#include <stdexcept>

namespace korvantes::bench {

namespace {

__extension__ using Wide = __int128;

/// To money and then to cents: units of `from` places to units of four places that are whole cents,
/// halves away from zero at both steps.
std::int64_t centsOf(Wide units, Wide unitsPerMoneyUnit) {
  const auto away = [](Wide value, Wide divisor) {
    const Wide half = divisor / 2;
    return (value >= 0 ? value + half : value - half) / divisor;
  };
  const Wide money = away(units, unitsPerMoneyUnit);
  return static_cast<std::int64_t>(away(money, 100) * 100);
}

std::string amount(std::int64_t money) {
  char text[32];
  const long long cents = money / 100;
  std::snprintf(text, sizeof text, "%s%lld,%02lld", cents < 0 ? "-" : "",
                cents < 0 ? -cents / 100 : cents / 100, cents < 0 ? -cents % 100 : cents % 100);
  return text;
}

const char* textOf(sqlite3_stmt* statement, int column) {
  const unsigned char* text = sqlite3_column_text(statement, column);
  return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

}  // namespace

struct Handwritten::Impl {
  sqlite3* db = nullptr;
  sqlite3_stmt* list = nullptr;
  sqlite3_stmt* lines = nullptr;
  sqlite3_stmt* header = nullptr;
  sqlite3_stmt* highest = nullptr;
  sqlite3_stmt* detail = nullptr;
  sqlite3_stmt* mark = nullptr;

  ~Impl() {
    for (sqlite3_stmt* statement : {list, lines, header, highest, detail, mark})
      sqlite3_finalize(statement);
    sqlite3_close(db);
  }
  void check(int code) const {
    if (code != SQLITE_OK && code != SQLITE_DONE && code != SQLITE_ROW)
      throw std::runtime_error(sqlite3_errmsg(db));
  }
  void run(const char* text) const { check(sqlite3_exec(db, text, nullptr, nullptr, nullptr)); }
  sqlite3_stmt* prepare(const char* text) const {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(db, text, -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    return statement;
  }
};

Handwritten::Handwritten(const std::string& path) : impl_(std::make_unique<Impl>()) {
  impl_->check(sqlite3_open(path.c_str(), &impl_->db));
  impl_->run("PRAGMA synchronous=FULL");
  // The notes' serial numbers are plain texts here: no column of these statements needs the
  // module's collation.
  impl_->list = impl_->prepare(
      "SELECT Cav_Id, Cav_NFiscal, Fav_Serie, Fav_Numero, Fav_Fecha, "
      "Cav_Serie || '/' || Cav_Numero, Cav_Dto1, Cav_DTO2, "
      "(SELECT SUM(Lav_Importe) FROM Lav WHERE Lav_IdCav = Cav_Id) "
      "FROM Cav INNER JOIN Fav ON Fav_Id = Cav_IdFactura "
      "WHERE (Cav_IdLca IS NULL OR Cav_IdLca = 0) AND Cav_Situa = 2 AND Cav_Agente = ?1 "
      "AND Fav_Id IN (SELECT Rec_IdFac FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit <> 8 "
      "GROUP BY Rec_IdFac HAVING COUNT(Rec_Id) = "
      "(SELECT COUNT(Rec_Id) FROM Rec WHERE Rec_IdFac = Fav_Id AND Rec_Sit = 5)) "
      "ORDER BY Fav_Fecha DESC");
  impl_->lines = impl_->prepare(
      "SELECT Lav_Importe, Cav_Dto1, Cav_DTO2, Lav_Comi FROM Lav INNER JOIN Cav "
      "ON Cav_Id = Lav_IdCav WHERE Cav_Id = ?1");
  impl_->header = impl_->prepare(
      "INSERT INTO Lca (Lca_IdAg, Lca_Fecha, Lca_Cob, Lca_NCob, Lca_IdTiva, Lca_Obs, Lca_Base, "
      "Lca_PorIva, Lca_Iva, Lca_PorRetencion, Lca_Retencion, Lca_Total) "
      "VALUES (1, '2026-01-31', 1, 0, 1, '', ?1, 2100, 0, 1500, 0, ?1)");
  impl_->highest = impl_->prepare("SELECT MAX(Lca_Id) FROM Lca");
  impl_->detail = impl_->prepare("INSERT INTO Lcd (Lcd_IdLca, Lcd_IdCav) VALUES (?1, ?2)");
  impl_->mark = impl_->prepare("UPDATE Cav SET Cav_IdLca = ?1 WHERE Cav_Id = ?2");
}

Handwritten::~Handwritten() = default;

std::int64_t Handwritten::commission(std::int64_t note) {
  sqlite3_stmt* statement = impl_->lines;
  sqlite3_bind_int64(statement, 1, note);
  std::int64_t sum = 0;
  int code = SQLITE_OK;
  while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
    const Wide line = sqlite3_column_int64(statement, 0);
    const Wide discount1 = centsOf(line * sqlite3_column_int64(statement, 1), 10000);
    const std::int64_t rest = centsOf(line - discount1, 1);
    const Wide discount2 =
        centsOf(static_cast<Wide>(rest) * sqlite3_column_int64(statement, 2), 10000);
    sum += centsOf((rest - discount2) * sqlite3_column_int64(statement, 3), 100000);
  }
  impl_->check(code);
  sqlite3_reset(statement);
  return sum;
}

std::vector<Handwritten::Row> Handwritten::list(int agent) {
  std::vector<Row> rows;
  sqlite3_stmt* statement = impl_->list;
  sqlite3_bind_int(statement, 1, agent);
  int code = SQLITE_OK;
  while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
    Row row;
    row.note = sqlite3_column_int64(statement, 0);
    char invoice[64];
    const char* serial = textOf(statement, 2);
    std::snprintf(invoice, sizeof invoice, "%s%s%06lld", serial, *serial == 0 ? "" : "/",
                  static_cast<long long>(sqlite3_column_int64(statement, 3)));
    const std::int64_t total = centsOf(sqlite3_column_int64(statement, 8), 1);
    const std::int64_t discount1 = centsOf(
        static_cast<Wide>(sqlite3_column_int64(statement, 8)) * sqlite3_column_int64(statement, 6),
        10000);
    const std::int64_t discount2 =
        centsOf(static_cast<Wide>(total - discount1) * sqlite3_column_int64(statement, 7), 10000);
    row.cells = {invoice,
                 textOf(statement, 4),
                 textOf(statement, 1),
                 textOf(statement, 5),
                 amount(total - discount1 - discount2),
                 "0",
                 amount(commission(row.note))};
    rows.push_back(std::move(row));
  }
  impl_->check(code);
  sqlite3_reset(statement);
  return rows;
}

void Handwritten::save(const std::vector<Row>& rows) {
  impl_->run("BEGIN IMMEDIATE");
  sqlite3_bind_int64(impl_->header, 1, 1234500);
  impl_->check(sqlite3_step(impl_->header));
  sqlite3_reset(impl_->header);
  impl_->check(sqlite3_step(impl_->highest));
  const std::int64_t settlement = sqlite3_column_int64(impl_->highest, 0);
  sqlite3_reset(impl_->highest);
  for (const Row& row : rows) {
    sqlite3_bind_int64(impl_->detail, 1, settlement);
    sqlite3_bind_int64(impl_->detail, 2, row.note);
    impl_->check(sqlite3_step(impl_->detail));
    sqlite3_reset(impl_->detail);
    sqlite3_bind_int64(impl_->mark, 1, settlement);
    sqlite3_bind_int64(impl_->mark, 2, row.note);
    impl_->check(sqlite3_step(impl_->mark));
    sqlite3_reset(impl_->mark);
  }
  impl_->run("COMMIT");
}

}  // namespace korvantes::bench
