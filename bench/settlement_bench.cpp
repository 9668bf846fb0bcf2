#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <stdexcept>

#include "bench/handwritten.h"
#include "bench/pending_database.h"
#include "component/KORVAN.h"
#include "data/commission_rule.h"
#include "engines/tsql/compiler.h"
#include "scripts/headless_desktop.h"

namespace korvantes::bench {

namespace {

using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) {
  return std::chrono::duration<double>(Clock::now() - start).count();
}

screen::Control& control(screen::Form& form, const char* identity) {
  screen::Control* found = form.findControl(identity);
  if (found == nullptr) throw std::logic_error(identity);
  return *found;
}

/// Plays a user on the settlement screen: agent 1, search; then, for a save, all rows, a date,
/// save.
class User {
 public:
  explicit User(PendingDatabase& database) : component_(KORVAN::Create()) {
    component_->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));
    screen::Desktop::makeCurrent(&desktop_);
    desktop_.clock = ado::Moment{{2026, 6, 30}, 0};
  }
  ~User() { screen::Desktop::makeCurrent(nullptr); }
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  /// Seconds of the click on the search button.
  double search() {
    play(false);
    return searchSeconds_;
  }
  /// Seconds of the click on the save button.
  double save() {
    play(true);
    return saveSeconds_;
  }
  std::size_t rows() const { return rows_; }

 private:
  void play(bool saving) {
    desktop_.whileShown = [&](screen::Form& form) {
      desktop_.user().moveFocus(control(form, "Text1(0)"));
      desktop_.user().type("1");
      desktop_.user().moveFocus(control(form, "Check1"));
      Clock::time_point start = Clock::now();
      desktop_.user().click(control(form, "cmbBuscarFacturas"));
      searchSeconds_ = secondsSince(start);
      rows_ = static_cast<screen::ListView&>(control(form, "ListView1")).Count();
      if (saving) {
        desktop_.user().click(control(form, "cmdSelTodo"));
        desktop_.user().moveFocus(control(form, "Text1(2)"));
        desktop_.user().type("30062026");
        desktop_.user().moveFocus(control(form, "Text1(7)"));
        start = Clock::now();
        desktop_.user().click(control(form, "cmdGrabar"));
        saveSeconds_ = secondsSince(start);
      }
      desktop_.user().settle();
      form.Unload();
    };
    component_->jShowNewLiqui();
  }

  scripts::HeadlessDesktop desktop_;
  std::shared_ptr<KORVAN> component_;
  double searchSeconds_ = 0, saveSeconds_ = 0;
  std::size_t rows_ = 0;
};

/// One iteration is the whole list; the counter shows seconds a note, as an inverted rate.
void perNote(benchmark::State& state, std::size_t notes) {
  state.counters["per_note"] =
      benchmark::Counter(static_cast<double>(notes), benchmark::Counter::kIsIterationInvariantRate |
                                                         benchmark::Counter::kInvert);
}

void expectRows(benchmark::State& state, std::size_t found, std::size_t expected) {
  if (found != expected) state.SkipWithError("unexpected number of rows");
}

void ListThroughTheScreen(benchmark::State& state) {
  PendingDatabase& database = pendingDatabase(static_cast<std::size_t>(state.range(0)));
  User user(database);
  for ([[maybe_unused]] auto _ : state) {
    state.SetIterationTime(user.search());
    expectRows(state, user.rows(), database.notes());
  }
  perNote(state, database.notes());
}

void ListByHand(benchmark::State& state) {
  PendingDatabase& database = pendingDatabase(static_cast<std::size_t>(state.range(0)));
  Handwritten hand(database.path());
  for ([[maybe_unused]] auto _ : state) {
    const Clock::time_point start = Clock::now();
    const auto rows = hand.list(1);
    state.SetIterationTime(secondsSince(start));
    expectRows(state, rows.size(), database.notes());
  }
  perNote(state, database.notes());
}

void SaveThroughTheScreen(benchmark::State& state) {
  PendingDatabase& database = pendingDatabase(static_cast<std::size_t>(state.range(0)));
  User user(database);
  for ([[maybe_unused]] auto _ : state) {
    state.SetIterationTime(user.save());
    const auto stored = database.connection()->Execute("SELECT COUNT(*) AS n FROM Lcd");
    expectRows(state, static_cast<std::size_t>(stored.Fields(0).Value().whole()), database.notes());
    database.freeAllNotes();
  }
  perNote(state, database.notes());
}

void SaveByHand(benchmark::State& state) {
  PendingDatabase& database = pendingDatabase(static_cast<std::size_t>(state.range(0)));
  Handwritten hand(database.path());
  const auto rows = hand.list(1);
  for ([[maybe_unused]] auto _ : state) {
    const Clock::time_point start = Clock::now();
    hand.save(rows);
    state.SetIterationTime(secondsSince(start));
    database.freeAllNotes();
  }
  perNote(state, database.notes());
}

void CommissionOfANote(benchmark::State& state) {
  PendingDatabase& database = pendingDatabase(10000);
  const auto component = KORVAN::Create();
  component->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));
  std::int32_t note = 0;
  for ([[maybe_unused]] auto _ : state) {
    note = note % 10000 + 1;
    benchmark::DoNotOptimize(component->msComisionAgente(data::kAlbaran, note, 0));
  }
}

void CommissionByHand(benchmark::State& state) {
  PendingDatabase& database = pendingDatabase(10000);
  Handwritten hand(database.path());
  std::int64_t note = 0;
  for ([[maybe_unused]] auto _ : state) {
    note = note % 10000 + 1;
    benchmark::DoNotOptimize(hand.commission(note));
  }
}

/// The compiler's share of that: finding the compiled statement by its text.
void CompilerCacheHit(benchmark::State& state) {
  PendingDatabase& database = pendingDatabase(10000);
  static_cast<void>(database);
  const auto catalogue = std::make_shared<tsql::Catalogue>();
  tsql::Compiler compiler(catalogue);
  for (const char* table :
       {"CREATE TABLE Cav (Cav_Id int PRIMARY KEY, Cav_Dto1 decimal(5,2), Cav_DTO2 decimal(5,2))",
        "CREATE TABLE Lav (Lav_Id int PRIMARY KEY, Lav_IdCav int, Lav_Importe money, "
        "Lav_Comi decimal(6,3))"})
    catalogue->add(*compiler.compile(table).statement->created);
  std::int32_t note = 0;
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(compiler.compile(data::sentenciaComision(data::kAlbaran, ++note, 0)));
}

/// Building only the statement's text, to be subtracted from the figure above.
void StatementText(benchmark::State& state) {
  std::int32_t note = 0;
  for ([[maybe_unused]] auto _ : state)
    benchmark::DoNotOptimize(data::sentenciaComision(data::kAlbaran, ++note, 0));
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK(ListThroughTheScreen)->Apply(sizes);
BENCHMARK(ListByHand)->Apply(sizes);
BENCHMARK(SaveThroughTheScreen)->Apply(sizes)->Iterations(3);
BENCHMARK(SaveByHand)->Apply(sizes)->Iterations(3);
BENCHMARK(CommissionOfANote)->Unit(benchmark::kMicrosecond);
BENCHMARK(CommissionByHand)->Unit(benchmark::kMicrosecond);
BENCHMARK(CompilerCacheHit)->Unit(benchmark::kMicrosecond);
BENCHMARK(StatementText)->Unit(benchmark::kMicrosecond);

}  // namespace

}  // namespace korvantes::bench

BENCHMARK_MAIN();
