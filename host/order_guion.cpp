#include <memory>
#include <ostream>

#include "host/component_session.h"
#include "host/create_base.h"
#include "host/database.h"
#include "host/input_text.h"
#include "host/orders.h"
#include "host/screens.h"
#include "host/windows.h"
#include "runtime/ado/temporary_folder.h"
#include "sample/settlement_script.h"
#include "scripts/failure.h"
#include "scripts/headless_desktop.h"
#include "scripts/player.h"

namespace korvantes::host {
namespace {

/// The time of day that a fixed clock shows.
constexpr int kNoon = 12 * 60 * 60;
/// The day on which the sample settlement is made, regardless of the machine's clock: rates in
/// force and accepted dates depend on it.
constexpr ado::Date kSampleToday = {2026, 7, 1};

std::unique_ptr<scripts::Stage> makeStage(bool withWindows) {
  if (withWindows) return makeWindowStage();
  return std::make_unique<scripts::HeadlessDesktop>();
}

/// Throws Failure if lines of the script failed.
void play(scripts::Stage& stage, std::string_view script, const CommandLine& line,
          const Database& database, std::ostream& out) {
  screen::Desktop& desktop = stage.desktop();
  if (line.regional) desktop.regional(*line.regional);
  if (line.today) stage.clock = ado::Moment{*line.today, kNoon};

  const ComponentSession session(database);
  scripts::Player player(stage, *database.connection, screensOf(session.component()), out,
                         line.output);
  const int errors = player.play(script);
  if (errors > 0)
    throw Failure("el guion ha dado errores: " + std::to_string(errors) +
                  (errors == 1 ? " línea marcada" : " líneas marcadas") + " con [error]");
}

}  // namespace

void orderScript(const CommandLine& line, Streams streams) {
  if (line.arguments.size() != 1)
    throw Failure("guion: se espera un FICHERO, o - para leerlo de la entrada");
  const Database database = openDatabase(line.base);
  const std::string script = readInput(line.arguments.front(), streams.in);
  play(*makeStage(line.desktop), script, line, database, streams.out);
}

void playSampleSettlement(const CommandLine& line, Streams streams) {
  streams.out << "No hay escritorio gráfico: se reproduce la liquidación de muestra sobre una base "
                 "temporal.\n\n";
  const ado::TemporaryFolder folder;
  const std::string path = folder.file("muestra.db");
  createBase(path, BaseContents::SampleData);
  const Database database = openFile(path);
  CommandLine sampleLine = line;
  if (!sampleLine.today) sampleLine.today = kSampleToday;
  play(*makeStage(hasWindows()), sample::kSettlementScript, sampleLine, database, streams.out);
}

}  // namespace korvantes::host
