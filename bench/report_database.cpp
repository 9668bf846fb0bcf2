#include "bench/report_database.h"

#include <array>

#include "runtime/ado/date.h"

namespace korvantes::bench {

namespace {

constexpr std::size_t kAgents = 40;
constexpr std::size_t kLinesPerNote = 5;
constexpr std::size_t kNotesPerSettlement = 5;

constexpr std::array kSurnames{"García",  "Muñoz",  "Nuñez",  "Ibáñez", "Álvarez", "Ortega",
                               "Zubiri",  "Castro", "Peña",   "Lopez",  "Martín",  "Sáenz",
                               "Navarro", "Gil",    "Robles", "Yáñez"};
constexpr std::array kTrades{"Ferretería", "Suministros", "Carpintería", "Almacenes", "Talleres",
                             "Hijos de",   "Cerrajería",  "Comercial",   "Bazar"};

std::string id(std::size_t number) {
  return std::to_string(number);
}

std::string dayFirst(std::size_t daysSince2021) {
  const long first = ado::Date{2021, 1, 1}.serial();
  return "'" + ado::Date::fromSerial(first + static_cast<long>(daysSince2021)).dayFirst() + "'";
}

std::string agentName(std::size_t agent) {
  return std::string(kSurnames[agent * 7 % kSurnames.size()]) + " " +
         kSurnames[agent * 5 % kSurnames.size()] + ", Agente " + id(agent);
}

std::string customerName(std::size_t customer) {
  return std::string(kTrades[customer % kTrades.size()]) + " " +
         kSurnames[customer * 3 % kSurnames.size()] + " " + id(customer) + ", S.L.";
}

/// Where the rows go, a table each.
struct Tables {
  explicit Tables(ado::Connection& c)
      : agents(c, "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_NIF, AGE_REG) VALUES "),
        customers(c, "INSERT INTO Cli (Cli_Id) VALUES "),
        settlements(c,
                    "INSERT INTO Lca (Lca_IdAg, Lca_Fecha, Lca_Cob, Lca_NCob, Lca_Base, Lca_Iva, "
                    "Lca_Retencion, Lca_Total) VALUES "),
        details(c, "INSERT INTO Lcd (Lcd_IdLca, Lcd_IdCav) VALUES "),
        invoices(c,
                 "INSERT INTO Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_IdCli, "
                 "Fav_CliCod, Fav_CliNom, Fav_BIva1, Fav_Biva2, Fav_Biva3) VALUES "),
        notes(c,
              "INSERT INTO Cav (Cav_Id, Cav_Serie, Cav_Numero, Cav_Dto1, Cav_DTO2, "
              "Cav_IdFactura, Cav_Agente, Cav_Situa, Cav_IdLca) VALUES "),
        lines(c, "INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi, Lav_Des) VALUES ") {}
  void flush() {
    for (InsertedRows* rows :
         {&agents, &customers, &settlements, &details, &invoices, &notes, &lines})
      rows->flush();
  }
  InsertedRows agents, customers, settlements, details, invoices, notes, lines;
};

void addNote(Tables& tables, std::size_t note, std::size_t invoice, std::size_t settlement,
             std::size_t agent) {
  tables.details.add(id(settlement) + ", " + id(note));
  tables.notes.add(id(note) + ", 'AL', " + id(note % 99999) + ", " + id(note % 20) + ", " +
                   id(note % 6) + ", " + id(invoice) + ", " + id(agent) + ", 2, " + id(settlement));
  for (std::size_t line = note * kLinesPerNote; line < (note + 1) * kLinesPerNote; ++line) {
    tables.lines.add(id(line + 1) + ", " + id(note) + ", " + cents(500 + line * 7919 % 100000) +
                     ", " + id(3 + line % 8) + ".5, '" + id(1 + line % 12) +
                     " × Artículo de ferretería " + id(line % 700) + "'");
  }
}

void addInvoice(Tables& tables, std::size_t invoice, std::size_t customers, std::size_t day) {
  const std::size_t customer = 1 + invoice * 31 % customers;
  tables.invoices.add(id(invoice) + ", 'A', " + id(invoice % 99999) + ", " + dayFirst(day) + ", " +
                      id(customer) + ", " + id(4300 + customer) + ", '" + customerName(customer) +
                      "', " + cents(50000 + invoice * 37 % 90000) + ", " + cents(invoice % 900) +
                      ", 0");
}

void fill(ado::Connection& connection, std::size_t settlements) {
  const std::size_t customers = 10 + settlements / 10;
  Tables tables(connection);
  connection.BeginTrans();
  for (std::size_t agent = 1; agent <= kAgents; ++agent)
    tables.agents.add(id(agent) + ", '" + agentName(agent) + "', '1234567" + id(agent) + "Z', 1");
  for (std::size_t customer = 1; customer <= customers; ++customer)
    tables.customers.add(id(customer));
  std::size_t note = 0, invoice = 0;
  for (std::size_t settlement = 1; settlement <= settlements; ++settlement) {
    const std::size_t agent = 1 + settlement % kAgents;
    const std::size_t day = 30 + settlement * 1800 / settlements;
    tables.settlements.add(id(agent) + ", " + dayFirst(day) + ", 1, 0, " + cents(settlement * 113) +
                           ", 0, 0, " + cents(settlement * 113));
    for (std::size_t i = 0; i < kNotesPerSettlement; ++i) {
      // The second note shares the invoice of the first.
      if (i != 1) addInvoice(tables, ++invoice, customers, day - i * 7);
      addNote(tables, ++note, invoice, settlement, agent);
    }
  }
  tables.flush();
  connection.CommitTrans();
}

}  // namespace

ReportDatabase::ReportDatabase(std::size_t lines) : lines_(lines) {
  fill(*connection(), settlements());
}

}  // namespace korvantes::bench
