#include <benchmark/benchmark.h>
#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "bench/peak_memory.h"
#include "office/sheet/spreadsheet.h"
#include "runtime/ado/temporary_folder.h"
#include "runtime/screen/form.h"

namespace korvantes::bench {

namespace {

/// Writes to one file again and again.
class Outlet : public office::SheetOutlet {
 public:
  std::optional<std::filesystem::path> fileFor(const std::string& name) override {
    return folder_.path() / name;
  }
  void written(const std::filesystem::path& file, std::size_t rows) override {
    bytes = static_cast<double>(std::filesystem::file_size(file));
    rows_ = rows;
  }
  std::size_t rows() const { return rows_; }
  double bytes = 0;

 private:
  ado::TemporaryFolder folder_;
  std::size_t rows_ = 0;
};

/// Measures the memory of an export beyond that of the rows.
template <class Export>
void measure(benchmark::State& state, Export&& toSheet) {
  const auto outlet = std::make_shared<Outlet>();
  office::Spreadsheet sheets(outlet);
  double peak = 0;
  for ([[maybe_unused]] auto _ : state) {
    forgetPeak();
    const double before = memory("VmRSS:");
    toSheet(sheets);
    peak = memory("VmHWM:") - before;
  }
  const auto rows = static_cast<std::size_t>(state.range(0));
  if (outlet->rows() != rows) state.SkipWithError("unexpected number of rows");
  state.counters["peak_kB"] = peak;
  state.counters["file_kB"] = outlet->bytes / 1024;
  state.counters["per_row"] =
      benchmark::Counter(static_cast<double>(rows), benchmark::Counter::kIsIterationInvariantRate |
                                                        benchmark::Counter::kInvert);
}

void ListToSheet(benchmark::State& state) {
  using screen::Alignment;
  screen::Form form("frmPrueba");
  screen::ListView list(form, "ListView1");
  list.ColumnHeaders = {{"Factura", 1440, Alignment::Left},  {"Fecha", 1440, Alignment::Left},
                        {"Cliente", 4000, Alignment::Right}, {"Albaran", 1440, Alignment::Left},
                        {"Importe", 1701, Alignment::Right}, {"%", 580, Alignment::Right},
                        {"Comision", 1701, Alignment::Right}};
  for (long row = 0; row < state.range(0); ++row) {
    const std::string number = std::to_string(row);
    list.Add("A/" + number).SubItems = {"2026-06-30",  "Cliente número " + number,
                                        "B/" + number, number + ",25",
                                        "3,50",        number + ",07"};
  }
  measure(state, [&](office::Spreadsheet& sheets) { sheets.call("ListToExcel", {&list}); });
}

void GridToSheet(benchmark::State& state) {
  using ado::FieldType;
  std::vector<ado::Variant> cells;
  cells.reserve(static_cast<std::size_t>(state.range(0)) * 6);
  for (long row = 0; row < state.range(0); ++row) {
    const std::string number = std::to_string(row);
    cells.insert(cells.end(), {row, "Agente número " + number, ado::Date{2026, 6, 30},
                               ado::Decimal::money(row * 10000 + 2500), ado::Decimal(350, 2),
                               static_cast<double>(row) / 100});
  }
  const ado::Recordset rows(
      std::make_shared<const std::vector<ado::FieldDefinition>>(
          std::vector<ado::FieldDefinition>{{"Lca_Id", FieldType::Integer},
                                            {"Age_Nom", FieldType::VarChar, 50},
                                            {"Lca_Fecha", FieldType::Date},
                                            {"Lca_Base", FieldType::Currency, 0, 4},
                                            {"Porcentaje", FieldType::Numeric, 0, 2},
                                            {"Comision", FieldType::Double}}),
      std::move(cells));
  screen::Form form("frmPrueba");
  screen::DataGrid grid(form, "dbgLiqui");
  grid.DataSource(rows);
  for (const std::size_t amount : {3U, 4U, 5U}) grid.Columns(amount).NumberFormat = "##,##0.00 ";
  measure(state, [&](office::Spreadsheet& sheets) { sheets.call("GridToExcel", {rows, &grid}); });
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(2000)->Arg(10000)->Arg(100000)->Unit(benchmark::kMillisecond);
}

BENCHMARK(ListToSheet)->Apply(sizes);
BENCHMARK(GridToSheet)->Apply(sizes);

}  // namespace

}  // namespace korvantes::bench

BENCHMARK_MAIN();
