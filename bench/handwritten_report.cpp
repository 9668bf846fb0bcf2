#include "bench/handwritten_report.h"

#include <cmath>
#include <cstdio>
#include <sqlite3.h>
#include <stdexcept>

#include "runtime/ado/text_order.h"

namespace korvantes::bench {

namespace {

constexpr const char* kHead =
    "SELECT Fav_Id, Lca_Id, Age_Nom, Lca_Fecha, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_CliNom, "
    "Fav_CliCod, Age_Id, Age_Nif, Lca_Base, Lca_Iva, Lca_Retencion, Lca_Total, "
    "Fav_BIva1 + Fav_Biva2 + Fav_Biva3, ";
constexpr const char* kJoins =
    "FROM Lca INNER JOIN Age ON Lca_IdAg = Age_Id INNER JOIN Lcd ON Lca_Id = Lcd_IdLca "
    "INNER JOIN Cav ON Lcd_IdCav = Cav_Id INNER JOIN Fav ON Fav_Id = Cav_IdFactura "
    "INNER JOIN Cli ON Cli_Id = Fav_IdCli ";
constexpr const char* kOrder = "ORDER BY Age_Nom, Lca_Fecha, Fav_Fecha, Fav_Serie, Fav_Numero";
constexpr int kFirstOwnColumn = 16;

/// Units of `unitsPerCent` to whole cents by way of money, halves away from zero at both steps.
std::int64_t cents(std::int64_t units, std::int64_t unitsPerMoneyUnit) {
  const auto away = [](std::int64_t value, std::int64_t divisor) {
    return (value >= 0 ? value + divisor / 2 : value - divisor / 2) / divisor;
  };
  return away(away(units, unitsPerMoneyUnit), 100);
}

struct LineAmounts {
  std::int64_t net, commission;
};

/// Of an amount, two discounts and a rate in four neighbouring columns.
LineAmounts amountsAt(sqlite3_stmt* row, int column) {
  const std::int64_t amount = sqlite3_column_int64(row, column);
  const std::int64_t discount1 = cents(amount * sqlite3_column_int64(row, column + 1), 10000);
  const std::int64_t left = cents(amount - discount1 * 100, 1);
  const std::int64_t net = left - cents(left * 100 * sqlite3_column_int64(row, column + 2), 10000);
  return {net * 100, cents(net * sqlite3_column_int64(row, column + 3), 1000) * 100};
}

std::string textAt(sqlite3_stmt* row, int column) {
  const unsigned char* text = sqlite3_column_text(row, column);
  return text == nullptr ? "" : reinterpret_cast<const char*>(text);
}

/// Series, stroke, number in five places.
std::string document(const std::string& series, long long number) {
  char text[64];
  std::snprintf(text, sizeof text, "%s/%-5lld", series.c_str(), number);
  return text;
}

void readHead(sqlite3_stmt* row, HandwrittenReport::Head& head) {
  head.invoice = sqlite3_column_int64(row, 0);
  head.settlement = sqlite3_column_int64(row, 1);
  head.agentName = textAt(row, 2);
  head.settled = textAt(row, 3);
  head.series = textAt(row, 4);
  head.number = sqlite3_column_int64(row, 5);
  head.invoiced = textAt(row, 6);
  head.customer = textAt(row, 7);
  head.customerCode = sqlite3_column_int64(row, 8);
  head.agent = sqlite3_column_int64(row, 9);
  head.taxNumber = textAt(row, 10);
  head.base = sqlite3_column_int64(row, 11);
  head.vat = sqlite3_column_int64(row, 12);
  head.withheld = sqlite3_column_int64(row, 13);
  head.total = sqlite3_column_int64(row, 14);
  head.gross = sqlite3_column_int64(row, 15);
  head.document = document(head.series, head.number);
}

int compare(void*, int aSize, const void* a, int bSize, const void* b) {
  return ado::compareTexts({static_cast<const char*>(a), static_cast<std::size_t>(aSize)},
                           {static_cast<const char*>(b), static_cast<std::size_t>(bSize)});
}

}  // namespace

struct HandwrittenReport::Impl {
  sqlite3* db = nullptr;
  sqlite3_stmt* sum = nullptr;
  sqlite3_stmt* notes = nullptr;
  sqlite3_stmt* linesOfNote = nullptr;
  sqlite3_stmt* lines = nullptr;

  ~Impl() {
    for (sqlite3_stmt* statement : {sum, notes, linesOfNote, lines}) sqlite3_finalize(statement);
    sqlite3_close(db);
  }
  void check(int code) const {
    if (code != SQLITE_OK && code != SQLITE_DONE && code != SQLITE_ROW)
      throw std::runtime_error(sqlite3_errmsg(db));
  }
  sqlite3_stmt* prepare(const std::string& text) const {
    sqlite3_stmt* statement = nullptr;
    check(sqlite3_prepare_v3(db, text.c_str(), -1, SQLITE_PREPARE_PERSISTENT, &statement, nullptr));
    return statement;
  }
  /// Calls `read` for each row and leaves the statement ready for another run.
  template <typename Read>
  void eachRow(sqlite3_stmt* statement, Read read) const {
    int code = SQLITE_OK;
    while ((code = sqlite3_step(statement)) == SQLITE_ROW) read(statement);
    sqlite3_reset(statement);
    check(code);
  }
};

HandwrittenReport::HandwrittenReport(const std::string& path) : impl_(std::make_unique<Impl>()) {
  impl_->check(sqlite3_open(path.c_str(), &impl_->db));
  impl_->check(sqlite3_exec(impl_->db, "PRAGMA cache_size=-16384", nullptr, nullptr, nullptr));
  // The tables' texts use this collation, and the rows must come in the same order.
  impl_->check(sqlite3_create_collation(impl_->db, "KV_TEXT", SQLITE_UTF8, nullptr, &compare));
  const std::string head = kHead;
  impl_->sum = impl_->prepare("SELECT SUM(Lca_Base) FROM Lca");
  impl_->notes = impl_->prepare(head + "Cav_Id " + kJoins + kOrder);
  impl_->linesOfNote = impl_->prepare(
      "SELECT Lav_Importe, Cav_Dto1, Cav_DTO2, Lav_Comi FROM Lav INNER JOIN Cav "
      "ON Cav_Id = Lav_IdCav WHERE Cav_Id = ?1");
  impl_->lines = impl_->prepare(
      head + "Cav_Serie, Cav_Numero, Lav_Des, Lav_Importe, Cav_Dto1, Cav_DTO2, Lav_Comi " + kJoins +
      "INNER JOIN Lav ON Lav_IdCav = Cav_Id " + kOrder);
}

HandwrittenReport::~HandwrittenReport() = default;

std::int64_t HandwrittenReport::total() {
  std::int64_t sum = 0;
  impl_->eachRow(impl_->sum, [&](sqlite3_stmt* row) { sum = sqlite3_column_int64(row, 0); });
  return sum;
}

std::vector<HandwrittenReport::InvoiceRow> HandwrittenReport::byInvoice() {
  std::vector<InvoiceRow> rows;
  impl_->eachRow(impl_->notes, [&](sqlite3_stmt* row) {
    sqlite3_bind_int64(impl_->linesOfNote, 1, sqlite3_column_int64(row, kFirstOwnColumn));
    std::int64_t commission = 0;
    impl_->eachRow(impl_->linesOfNote,
                   [&](sqlite3_stmt* line) { commission += amountsAt(line, 0).commission; });
    if (rows.empty() || rows.back().invoice != sqlite3_column_int64(row, 0)) {
      rows.emplace_back();
      readHead(row, rows.back());
    }
    InvoiceRow& invoice = rows.back();
    invoice.commission += commission;
    if (invoice.gross != 0) {
      const double percentage =
          static_cast<double>(invoice.commission) * 100 / static_cast<double>(invoice.gross);
      invoice.percentage = std::round(percentage * 100) / 100;
    }
  });
  return rows;
}

std::vector<HandwrittenReport::LineRow> HandwrittenReport::byLine() {
  std::vector<LineRow> rows;
  impl_->eachRow(impl_->lines, [&](sqlite3_stmt* row) {
    LineRow& line = rows.emplace_back();
    readHead(row, line);
    line.note =
        document(textAt(row, kFirstOwnColumn), sqlite3_column_int64(row, kFirstOwnColumn + 1));
    line.text = textAt(row, kFirstOwnColumn + 2);
    const LineAmounts amounts = amountsAt(row, kFirstOwnColumn + 3);
    line.net = amounts.net;
    line.commission = amounts.commission;
    line.rate = sqlite3_column_int64(row, kFirstOwnColumn + 6);
  });
  return rows;
}

}  // namespace korvantes::bench
