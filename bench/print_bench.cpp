#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>

#include "bench/peak_memory.h"
#include "bench/pending_database.h"
#include "office/print/mz_print.h"
#include "office/print/offscreen_application.h"
#include "office/print/pdf_file.h"
#include "outside/plindor/base_datos.h"
#include "scripts/headless_desktop.h"

namespace korvantes::bench {

namespace {

/// Keeps the report that it is given, so that gathering and paging are timed apart.
struct KeptReport : office::ReportOutlet {
  void deliver(std::shared_ptr<const office::Report> given) override { report = std::move(given); }
  std::shared_ptr<const office::Report> report;
};

/// A report gathered from a database of some size.
class Printing {
 public:
  explicit Printing(PendingDatabase& database) : database_(database) {
    screen::Desktop::makeCurrent(&desktop_);
    print_.set("MyBd", std::make_shared<plindor::BaseDatos>(database.connection()));
  }
  ~Printing() {
    screen::Desktop::makeCurrent(nullptr);
    database_.freeAllNotes();
  }
  Printing(const Printing&) = delete;
  Printing& operator=(const Printing&) = delete;

  /// Puts all notes into one settlement; returns the statement of its report.
  std::string settle() {
    ado::Connection& connection = *database_.connection();
    connection.Execute(
        "INSERT INTO Lca (Lca_IdAg, Lca_Fecha, Lca_Base, Lca_PorIva, Lca_Iva, Lca_PorRetencion, "
        "Lca_Retencion, Lca_Total) VALUES (1, '24/11/2026', 100, 21, 21, 15, 15, 106)");
    const std::string number = std::to_string(
        connection.Execute("SELECT MAX(Lca_Id) FROM Lca").Fields(0).Value().asLong());
    connection.Execute("INSERT INTO Lcd (Lcd_IdLca, Lcd_IdCav) SELECT " + number +
                       ", Cav_Id FROM Cav");
    return "select age_id,age_nom,age_nif,lca.* from lca inner join age on lca_idag=age_id  Where "
           "lca_id = " +
           number;
  }
  /// The settlement's notes as the rows of the search by invoice.
  std::string listStatement() {
    settle();
    return "SELECT Lca_Id,Age_Id,Age_Nom,Age_Nif,Lca_Fecha,(Fav_Serie + '/' + CAST(Fav_Numero AS "
           "varchar(10))) AS Factura,Fav_Fecha,Fav_CliCod,Fav_CliNom,Fav_BIva1 AS Fav_Bruto,7.5 AS "
           "Porcentaje,Fav_BIva1 AS Comision,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total FROM Lca "
           "INNER JOIN Age ON Lca_IdAg = Age_Id INNER JOIN Lcd ON Lca_Id = Lcd_IdLca INNER JOIN "
           "Cav ON Lcd_IdCav = Cav_Id INNER JOIN Fav ON Fav_Id = Cav_IdFactura";
  }
  std::shared_ptr<const office::Report> gather(int number, const std::string& statement) {
    print_.call("ShowReport", {ado::Variant(number), ado::Variant(statement), ado::Variant(0)});
    return outlet_->report;
  }

 private:
  PendingDatabase& database_;
  scripts::HeadlessDesktop desktop_;
  std::shared_ptr<KeptReport> outlet_ = std::make_shared<KeptReport>();
  office::MZPrint print_{outlet_};
};

void report(benchmark::State& state, int number) {
  const office::OffscreenApplication application;
  PendingDatabase& database = pendingDatabase(static_cast<std::size_t>(state.range(0)));
  Printing printing(database);
  const std::string statement = number == 11 ? printing.settle() : printing.listStatement();
  const std::filesystem::path file = database.path() + ".pdf";
  double peak = 0;
  for ([[maybe_unused]] auto _ : state) {
    const auto gathered = printing.gather(number, statement);
    forgetPeak();
    const double before = memory("VmRSS:");
    office::writePdf(*gathered, file);
    peak = memory("VmHWM:") - before;
  }
  state.counters["paging_peak_kB"] = peak;
  state.counters["file_kB"] = static_cast<double>(std::filesystem::file_size(file)) / 1024;
  state.counters["per_row"] = benchmark::Counter(
      static_cast<double>(database.notes()),
      benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
}

void SettlementReport(benchmark::State& state) {
  report(state, 11);
}
void ListReport(benchmark::State& state) {
  report(state, 12);
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(2000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(SettlementReport)->Apply(sizes);
BENCHMARK(ListReport)->Apply(sizes);

}  // namespace

}  // namespace korvantes::bench

BENCHMARK_MAIN();
