#include "tests/report/random_database.h"

#include <optional>
#include <random>
#include <string>

namespace korvantes::report {

namespace {

constexpr int kAgents = 12, kCustomers = 30, kLost = 900'000;

class Filler {
 public:
  Filler(ado::Connection& connection, unsigned seed) : connection_(connection), random_(seed) {}

  void fill(int settlements) {
    connection_.BeginTrans();
    const char* names[] = {"'Núñez'", "'nunez'", "'Ñuñez'", "'Álvarez'", "'alvarez B'", "'Zubiri'"};
    for (int agent = 1; agent < kAgents; ++agent)
      insert("Age (AGE_ID, AGE_NOM, AGE_NIF)",
             number(agent) + "," +
                 (agent > 6 ? "'Agente " + number(agent * 37 % 50) + "'"
                            : std::string(names[agent - 1])) +
                 (agent == 3 ? ",Null" : ",'12345ñ7890-123456789ñ " + number(agent) + "'"));
    for (int customer = 1; customer <= kCustomers; ++customer)
      insert("Cli (Cli_Id)", number(customer));
    for (int id = 1; id <= settlements; ++id) settlement(id);
    connection_.CommitTrans();
  }

 private:
  int below(int limit) { return static_cast<int>(random_() % static_cast<unsigned>(limit)); }
  bool once(int times) { return below(times) == 0; }
  static std::string number(std::int64_t value) { return std::to_string(value); }
  static std::string decimal(std::optional<std::int64_t> units, int scale) {
    return units ? ado::Decimal(*units, scale).text() : "Null";
  }
  std::string day(int serial) {
    return "'" + ado::Date::fromSerial(18000 + serial).dayFirst() + "'";
  }

  // A row at a time: its statement is compiled once, whatever its literals.
  void insert(const std::string& table, const std::string& row) {
    connection_.Execute("INSERT INTO " + table + " VALUES (" + row + ")");
  }

  void settlement(int id) {
    const int agent = 1 + id % kAgents;  // the last agent has no row
    const int date = id / kAgents;
    for (int invoices = below(5); invoices >= 0; --invoices) invoice(id, date - below(40));
    const std::string base = decimal(below(5'000'000) - 1'000'000, 2);
    insert("Lca (Lca_IdAg, Lca_Fecha, Lca_Base, Lca_Iva, Lca_Retencion, Lca_Total)",
           number(agent) + "," + (date == 3 ? "Null" : day(date)) + "," + base + ",1.21," +
               (once(9) ? "Null" : "-3.5") + "," + base);
  }

  void invoice(int settlement, int date) {
    const int id = ++invoices_;
    const bool lost = once(25), noCustomer = once(25);
    const char* series[] = {"'A'", "'B'", "''", "Null"};
    std::string bases;
    for (int rate = 0; rate < 3; ++rate)
      bases += "," + (once(12) ? "Null" : once(3) ? "0" : decimal(below(900'000) - 100'000, 2));
    const int customer = 1 + below(kCustomers);
    if (!lost)
      insert(
          "Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli, Fav_CliCod, Fav_CliNom, "
          "Fav_BIva1, Fav_Biva2, Fav_Biva3)",
          number(id) + "," + series[below(4)] + "," + number(id * 7) + "," +
              (once(30) ? "Null" : day(date)) + "," + number(noCustomer ? kLost : customer) + "," +
              (once(9) ? "Null" : number(customer)) + "," +
              (once(30) ? "Null" : "' Ébano y Ñu " + number(customer) + "  '") + bases);
    for (int notes = once(3) ? 1 + below(2) : 0; notes >= 0; --notes)
      note(settlement, lost ? kLost + id : id);
  }

  void note(int settlement, int invoice) {
    const int id = ++notes_;
    const std::int64_t rates[] = {0, 0, 500, 1000, 1250, 225};
    const auto rate = [&] { return once(40) ? "Null" : decimal(rates[below(6)], 2); };
    const std::string discount1 = rate(), discount2 = rate();
    insert("Lcd", number(settlement) + "," + number(id));
    insert(
        "Cav (Cav_Id, Cav_Serie, Cav_Numero, Cav_Dto1, Cav_DTO2, Cav_IdFactura, Cav_Situa, "
        "Cav_IdLca)",
        number(id) + "," + (once(20) ? "Null" : "'AL'") + "," + number(id * 61 % 120'000) + "," +
            discount1 + "," + discount2 + "," + number(invoice) + ",2," + number(settlement));
    for (int lines = below(6); lines > 0; --lines) line(id);
  }

  void line(int note) {
    std::optional<std::int64_t> amount = below(20'000'000) - 5'000'000;
    if (once(3)) amount = *amount / 50 * 50;  // ends in a half cent, often
    if (once(25)) amount.reset();
    const std::optional<std::int64_t> commission =
        once(25) ? std::nullopt : std::optional<std::int64_t>(below(20'000));
    const std::string id = number(++lines_);
    insert("Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi, Lav_Des)",
           id + "," + number(note) + "," + decimal(amount, 4) + "," + decimal(commission, 3) +
               ",'Línea " + id + "'");
  }

  ado::Connection& connection_;
  std::mt19937 random_;
  int invoices_ = 0, notes_ = 0, lines_ = 0;
};

}  // namespace

void fillRandomDatabase(ado::Connection& connection, int settlements, unsigned seed) {
  Filler(connection, seed).fill(settlements);
}

}  // namespace korvantes::report
