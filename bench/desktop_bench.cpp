#include <QCoreApplication>
#include <benchmark/benchmark.h>
#include <chrono>
#include <memory>
#include <stdexcept>

#include "bench/pending_database.h"
#include "component/KORVAN.h"
#include "scripts/headless_desktop.h"
#include "scripts/windows/window_desktop.h"

namespace korvantes::bench {

namespace {

using Clock = std::chrono::steady_clock;

screen::Control& control(screen::Form& form, const char* identity) {
  screen::Control* found = form.findControl(identity);
  if (found == nullptr) throw std::logic_error(identity);
  return *found;
}

/// Seconds from the click on the search button until the list is filled and, with windows, painted.
double searchSeconds(scripts::Stage& stage, KORVAN& component, std::size_t notes) {
  double seconds = 0;
  stage.whileShown = [&](screen::Form& form) {
    stage.user().moveFocus(control(form, "Text1(0)"));
    stage.user().type("1");
    stage.user().moveFocus(control(form, "Check1"));
    const Clock::time_point start = Clock::now();
    stage.user().click(control(form, "cmbBuscarFacturas"));
    stage.user().settle();
    if (stage.draws()) QCoreApplication::processEvents();
    seconds = std::chrono::duration<double>(Clock::now() - start).count();
    if (static_cast<screen::ListView&>(control(form, "ListView1")).Count() != notes)
      throw std::logic_error("unexpected number of rows");
    form.Unload();
  };
  component.jShowNewLiqui();
  stage.whileShown = nullptr;
  return seconds;
}

template <class Stage>
void List(benchmark::State& state) {
  const PendingDatabase& database = pendingDatabase(static_cast<std::size_t>(state.range(0)));
  const auto component = KORVAN::Create();
  component->MyBd(std::make_shared<plindor::BaseDatos>(database.connection()));
  Stage stage;
  screen::Desktop::makeCurrent(&stage.desktop());
  stage.clock = ado::Moment{{2026, 6, 30}, 0};
  for ([[maybe_unused]] auto _ : state)
    state.SetIterationTime(searchSeconds(stage, *component, database.notes()));
  screen::Desktop::makeCurrent(nullptr);
}

void sizes(benchmark::internal::Benchmark* bench) {
  bench->Arg(1000)->Arg(10000)->Arg(100000)->UseManualTime()->Unit(benchmark::kMillisecond);
}

BENCHMARK_TEMPLATE(List, scripts::HeadlessDesktop)->Apply(sizes);
BENCHMARK_TEMPLATE(List, scripts::WindowStage)->Apply(sizes);

}  // namespace

}  // namespace korvantes::bench

BENCHMARK_MAIN();
