// What the user of the agent master waits for with an arrow key held down in the list.
#include <QCoreApplication>
#include <algorithm>
#include <benchmark/benchmark.h>
#include <chrono>
#include <cstdint>
#include <memory>
#include <stdexcept>

#include "bench/bench_database.h"
#include "component/KORVAN.h"
#include "scripts/headless_desktop.h"
#include "scripts/key_names.h"
#include "scripts/windows/window_desktop.h"

namespace korvantes::bench {

namespace {

using Clock = std::chrono::steady_clock;

constexpr std::size_t kAgents = 10'000;
/// The number of agents with a picture, if there are pictures.
constexpr std::size_t kWithPicture = 100;

/// A bmp file of about that size: a square of coloured dots, three bytes each.
ado::Bytes bitmap(std::size_t bytes) {
  constexpr std::size_t kHeader = 54;
  std::uint32_t side = 4;
  while (std::size_t{side} * side * 3 < bytes) side += 4;
  ado::Bytes file(kHeader + std::size_t{side} * side * 3);
  for (std::size_t i = kHeader; i < file.size(); ++i) file[i] = static_cast<std::byte>(i * i >> 7U);
  const auto put = [&file](std::size_t at, std::uint32_t number) {
    for (unsigned i = 0; i < 4; ++i) file[at + i] = static_cast<std::byte>(number >> (8 * i));
  };
  file[0] = std::byte{'B'};
  file[1] = std::byte{'M'};
  put(2, static_cast<std::uint32_t>(file.size()));
  put(10, kHeader);
  put(14, 40);
  put(18, side);
  put(22, side);
  put(26, 1U | 24U << 16U);
  return file;
}

/// 10,000 agents, the first hundred of them with a picture of so many bytes.
class AgentsDatabase : public BenchDatabase {
 public:
  explicit AgentsDatabase(std::size_t pictureBytes) {
    connection()->BeginTrans();
    connection()->Execute("INSERT INTO Vespara.dbo.PROV (PROV_COD, PROV_NOM) VALUES (28,'Madrid')");
    connection()->Execute("INSERT INTO Vespara.dbo.PAIS (PAIS_COD, PAIS_NOM) VALUES (34,'España')");
    InsertedRows rows(
        *connection(),
        "INSERT INTO Age (AGE_ID, AGE_NOM, AGE_NIF, AGE_PRO, AGE_PAI, AGE_COM) VALUES ");
    for (std::size_t agent = 1; agent <= kAgents; ++agent)
      rows.add(std::to_string(agent) + ", 'Agente " + std::to_string(agent) +
               "', '12345678Z', '28', 34, 3.5");
    rows.flush();
    for (std::size_t agent = 1; pictureBytes > 0 && agent <= kWithPicture; ++agent) {
      auto row =
          connection()->OpenForUpdate("select * from Age where AGE_ID = " + std::to_string(agent));
      row.Fields("AGE_IMG").Value(bitmap(pictureBytes));
      row.Update();
    }
    connection()->CommitTrans();
  }
};

screen::Control& control(screen::Form& form, const char* identity) {
  screen::Control* found = form.findControl(identity);
  if (found == nullptr) throw std::logic_error(identity);
  return *found;
}

/// Seconds a move, from the key until the fields are filled and, with windows, painted.
double moveSeconds(scripts::Stage& stage, KORVAN& component, std::size_t moves) {
  double seconds = 0;
  stage.whileShown = [&](screen::Form& form) {
    stage.user().moveFocus(control(form, "dboOper"));
    const screen::Key down = *scripts::keyNamed("Abajo");
    const Clock::time_point start = Clock::now();
    for (std::size_t move = 0; move < moves; ++move) {
      stage.user().stroke(down);
      if (stage.draws()) QCoreApplication::processEvents();
    }
    seconds = std::chrono::duration<double>(Clock::now() - start).count();
    if (static_cast<screen::DataGrid&>(control(form, "dboOper")).currentRow() != moves)
      throw std::logic_error("not on the expected row");
    form.Unload();
  };
  component.jShow();
  stage.whileShown = nullptr;
  return seconds / static_cast<double>(moves);
}

template <class Stage>
void Move(benchmark::State& state) {
  const auto bytes = static_cast<std::size_t>(state.range(0));
  const auto component = KORVAN::Create();
  component->MyBd(
      std::make_shared<plindor::BaseDatos>(databaseOf<AgentsDatabase>(bytes).connection()));
  Stage stage;
  screen::Desktop::makeCurrent(&stage.desktop());
  const std::size_t moves = bytes > 0 ? kWithPicture - 1 : std::min<std::size_t>(kAgents - 1, 1000);
  for ([[maybe_unused]] auto _ : state)
    state.SetIterationTime(moveSeconds(stage, *component, moves));
  screen::Desktop::makeCurrent(nullptr);
}

void pictures(benchmark::internal::Benchmark* bench) {
  bench->Arg(0)->Arg(500'000)->UseManualTime()->Unit(benchmark::kMicrosecond)->Iterations(5);
}

BENCHMARK_TEMPLATE(Move, scripts::HeadlessDesktop)->Apply(pictures);
BENCHMARK_TEMPLATE(Move, scripts::WindowStage)->Apply(pictures);

}  // namespace

}  // namespace korvantes::bench

BENCHMARK_MAIN();
