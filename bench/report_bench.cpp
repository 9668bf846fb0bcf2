// The search of stored settlements through the screen and by hand, in the shapes by invoice and by
// delivery note line. The argument is the number of lines in the database.
#include <benchmark/benchmark.h>
#include <chrono>
#include <ctime>
#include <fstream>
#include <malloc.h>
#include <stdexcept>
#include <unistd.h>

#include "bench/handwritten_report.h"
#include "bench/report_database.h"
#include "component/KORVAN.h"
#include "scripts/headless_desktop.h"

namespace korvantes::bench {

namespace {

/// Wall and processor time since it was made: on a busy machine only the second one compares.
class Stopwatch {
 public:
  double seconds() const {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start_).count();
  }
  double cpuSeconds() const {
    return static_cast<double>(std::clock() - cpuStart_) / CLOCKS_PER_SEC;
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::clock_t cpuStart_ = std::clock();
};

template <class T>
T& control(screen::Form& form, const char* identity) {
  auto* found = dynamic_cast<T*>(form.findControl(identity));
  if (found == nullptr) throw std::logic_error(identity);
  return *found;
}

/// Bytes of this process in memory, without what is free.
double residentBytes() {
  malloc_trim(0);
  double size = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> size >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

/// What one search took.
struct Figures {
  std::size_t rows = 0;
  double seconds = 0, cpuSeconds = 0, bytes = 0;
};

/// Opens the screen, chooses the shape and presses the search button, all settlements wanted.
Figures searchOnScreen(ReportDatabase& database, bool byLine) {
  scripts::HeadlessDesktop desktop;
  const auto component = KORVAN::Create();
  component->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));
  screen::Desktop::makeCurrent(&desktop);
  Figures figures;
  desktop.whileShown = [&](screen::Form& form) {
    desktop.user().click(control<screen::CheckBox>(form, "Check1(0)"));
    if (byLine) desktop.user().click(control<screen::CheckBox>(form, "Check1(1)"));
    const double before = residentBytes();
    const Stopwatch watch;
    desktop.user().click(control<screen::PictureButton>(form, "cmdBuscar"));
    figures.seconds = watch.seconds();
    figures.cpuSeconds = watch.cpuSeconds();
    figures.bytes = residentBytes() - before;
    figures.rows = control<screen::DataGrid>(form, "dbgLiqui").RowCount();
    desktop.user().settle();
    form.Unload();
  };
  component->jShowInfLiqui();
  screen::Desktop::makeCurrent(nullptr);
  return figures;
}

template <class Search>
Figures searchByHand(Search search) {
  const double before = residentBytes();
  const Stopwatch watch;
  const auto rows = search();
  const double seconds = watch.seconds(), cpuSeconds = watch.cpuSeconds();
  return {rows.size(), seconds, cpuSeconds, residentBytes() - before};
}

/// Runs a search, which must find `rows`, and reports seconds and bytes a row.
template <class Search>
void measure(benchmark::State& state, std::size_t rows, Search search) {
  double bytes = 0, cpuSeconds = 0;
  for ([[maybe_unused]] auto _ : state) {
    const Figures figures = search();
    state.SetIterationTime(figures.seconds);
    bytes = figures.bytes;
    cpuSeconds += figures.cpuSeconds;
    if (figures.rows != rows) state.SkipWithError("unexpected number of rows");
  }
  const auto count = static_cast<double>(rows);
  state.counters["per_row"] = benchmark::Counter(
      count, benchmark::Counter::kIsIterationInvariantRate | benchmark::Counter::kInvert);
  state.counters["cpu_per_row"] =
      benchmark::Counter(cpuSeconds / count, benchmark::Counter::kAvgIterations);
  state.counters["bytes_a_row"] = bytes / count;
}

ReportDatabase& databaseFor(const benchmark::State& state) {
  return databaseOf<ReportDatabase>(static_cast<std::size_t>(state.range(0)));
}

void ByInvoiceThroughTheScreen(benchmark::State& state) {
  ReportDatabase& database = databaseFor(state);
  measure(state, database.invoices(), [&] { return searchOnScreen(database, false); });
}

void ByInvoiceByHand(benchmark::State& state) {
  ReportDatabase& database = databaseFor(state);
  HandwrittenReport hand(database.path());
  measure(state, database.invoices(), [&] {
    return searchByHand([&] {
      benchmark::DoNotOptimize(hand.total());
      return hand.byInvoice();
    });
  });
}

void ByLineThroughTheScreen(benchmark::State& state) {
  ReportDatabase& database = databaseFor(state);
  measure(state, database.lines(), [&] { return searchOnScreen(database, true); });
}

void ByLineByHand(benchmark::State& state) {
  ReportDatabase& database = databaseFor(state);
  HandwrittenReport hand(database.path());
  measure(state, database.lines(), [&] {
    return searchByHand([&] {
      benchmark::DoNotOptimize(hand.total());
      return hand.byLine();
    });
  });
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(10000)->Arg(100000)->Arg(500000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(ByInvoiceThroughTheScreen)->Apply(sizes);
BENCHMARK(ByInvoiceByHand)->Apply(sizes);
BENCHMARK(ByLineThroughTheScreen)->Apply(sizes);
BENCHMARK(ByLineByHand)->Apply(sizes);

}  // namespace

}  // namespace korvantes::bench

BENCHMARK_MAIN();
