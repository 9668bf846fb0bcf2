#include "host/script_actions.h"

#include <cstdint>
#include <optional>
#include <string>

#include "host/failure.h"
#include "host/printed_values.h"
#include "host/script_controls.h"
#include "host/script_words.h"

namespace korvantes::host {
namespace {

/// One action: what follows the verb's blank, as it stands.
using Action = void (*)(ScriptStage& stage, std::string_view text);

void open(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  const std::string_view name = words.word("el nombre de la pantalla");
  std::optional<std::int32_t> number;
  if (!words.atEnd()) number = static_cast<std::int32_t>(words.number("el número", 0));
  words.end();
  const auto screen = stage.screens.find(name);
  if (screen == stage.screens.end()) throw Failure("no se conoce la pantalla " + inQuotes(name));
  screen->second(number);
}

void goTo(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  screen::Control& control = usableControl(stage, words.word("el control"));
  words.end();
  if (!control.canTakeFocus()) throw Failure(control.identity() + " no puede recibir el foco");
  stage.desktop.user().moveFocus(control);
}

void requireFocus(const ScriptStage& stage) {
  if (stage.form().ActiveControl() == nullptr) throw Failure("ningún control tiene el foco");
}

void requireText(std::string_view text) {
  if (text.empty()) throw Failure("falta el texto");
}

void typeText(ScriptStage& stage, std::string_view text) {
  requireText(text);
  requireFocus(stage);
  stage.desktop.type(text);
}

void pasteText(ScriptStage& stage, std::string_view text) {
  requireText(text);
  requireFocus(stage);
  if (!stage.desktop.user().paste(text)) throw Failure("el control con el foco no admite texto");
}

void clearText(ScriptStage& stage, std::string_view text) {
  ScriptWords(text).end();
  requireFocus(stage);
  if (!stage.desktop.user().clearText())
    throw Failure("el control con el foco no tiene texto que se pueda borrar");
}

void strikeKey(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  const std::string_view name = words.word("la tecla");
  words.end();
  stage.form();
  const std::optional<screen::Key> key = screen::keyNamed(name);
  if (!key) throw Failure("no se conoce la tecla " + inQuotes(name));
  stage.desktop.stroke(*key);
}

void pushButton(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  auto& button = usableControl<screen::PictureButton>(stage, words.word("el botón"), "un botón");
  words.end();
  stage.desktop.user().click(button);
}

/// A mark that is already as wanted needs no click; the focus goes there all the same.
void setMark(ScriptStage& stage, std::string_view text, bool checked) {
  ScriptWords words(text);
  screen::Control& control = usableControl(stage, words.word("la casilla"));
  if (auto* list = dynamic_cast<screen::ListView*>(&control)) {
    const std::size_t row = words.number("la fila", 1);
    words.end();
    if (row > list->Count())
      throw Failure(list->identity() + " no tiene la fila " + std::to_string(row));
    if (list->item(row - 1).Checked == checked)
      stage.desktop.user().moveFocus(control);
    else
      stage.desktop.user().tick(*list, row - 1, checked);
    return;
  }
  const auto* box = dynamic_cast<const screen::CheckBox*>(&control);
  if (box == nullptr) throw Failure(control.identity() + " no es una casilla");
  words.end();
  if ((box->Value() != 0) == checked)
    stage.desktop.user().moveFocus(control);
  else
    stage.desktop.user().click(control);
}

void mark(ScriptStage& stage, std::string_view text) {
  setMark(stage, text, true);
}
void unmark(ScriptStage& stage, std::string_view text) {
  setMark(stage, text, false);
}

void selectOption(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  auto& option =
      usableControl<screen::OptionButton>(stage, words.word("la opción"), "un botón de opción");
  words.end();
  stage.desktop.user().click(option);
}

void chooseEntry(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  auto& combo =
      usableControl<screen::ComboBox>(stage, words.word("la lista"), "una lista desplegable");
  if (const auto typed = withoutQuotes(words.rest())) {
    if (!combo.Editable()) throw Failure("en " + combo.identity() + " no se puede escribir");
    stage.desktop.user().typeEntry(combo, *typed);
    return;
  }
  const std::size_t entry = words.number("la entrada", 0);
  words.end();
  if (entry >= combo.list().size())
    throw Failure(combo.identity() + " no tiene la entrada " + std::to_string(entry));
  stage.desktop.user().selectEntry(combo, static_cast<int>(entry));
}

void selectRow(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  auto& grid = usableControl<screen::DataGrid>(stage, words.word("la rejilla"), "una rejilla");
  const std::size_t row = words.number("la fila", 1);
  words.end();
  if (row > grid.RowCount())
    throw Failure(grid.identity() + " no tiene la fila " + std::to_string(row));
  stage.desktop.user().selectRow(grid, row - 1);
}

void clickHeading(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  auto& list = usableControl<screen::ListView>(stage, words.word("la lista"), "una lista");
  const std::size_t column = words.number("la columna", 1);
  words.end();
  if (column > list.ColumnHeaders.size() || list.ColumnHeaders[column - 1].Width == 0)
    throw Failure(list.identity() + " no muestra la columna " + std::to_string(column));
  stage.desktop.user().clickColumn(list, static_cast<int>(column));
}

void pressCell(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  auto& grid = usableControl<screen::DataGrid>(stage, words.word("la rejilla"), "una rejilla");
  const std::size_t column = words.number("la columna", 0);
  words.end();
  if (!grid.currentRow()) throw Failure(grid.identity() + " no tiene fila actual");
  if (column >= grid.ColumnCount() || !grid.Columns(column).Visible || !grid.Columns(column).Button)
    throw Failure(grid.identity() + " no tiene botón en la columna " + std::to_string(column));
  stage.desktop.user().pressCellButton(grid, static_cast<int>(column));
}

void queueAnswer(ScriptStage& stage, std::string_view text) {
  using Button = QueuedAnswers::Button;
  ScriptWords words(text);
  const std::string_view name = words.word("la respuesta");
  words.end();
  if (name == "Sí")
    stage.answers.add(Button::Yes);
  else if (name == "No")
    stage.answers.add(Button::No);
  else if (name == "Aceptar")
    stage.answers.add(Button::Ok);
  else if (name == "Enter")
    stage.answers.add(Button::EnterKey);
  else
    throw Failure("no se conoce la respuesta " + inQuotes(name));
}

void queueListChoice(ScriptStage& stage, std::string_view text) {
  ScriptWords words(text);
  QueuedAnswers::ListChoice choice;
  if (ScriptWords(words).word("la fila") == "nada")
    words.word("la fila");
  else
    choice.row = words.number("la fila", 1);
  if (!words.atEnd()) {
    if (words.rest() != "Enter") throw Failure("sobra " + inQuotes(words.rest()));
    choice.byEnter = true;
  }
  stage.answers.add(choice);
}

void queueFile(ScriptStage& stage, std::string_view text) {
  const std::string_view path = ScriptWords(text).rest();
  if (path.empty()) throw Failure("falta la ruta");
  if (path == "nada")
    stage.answers.addFile(std::nullopt);
  else
    stage.answers.addFile(std::string(path));
}

void runStatement(ScriptStage& stage, std::string_view text) {
  if (ScriptWords(text).atEnd()) throw Failure("falta la sentencia");
  printStatement(stage.base, text, stage.transcript.stream());
}

void closeForm(ScriptStage& stage, std::string_view text) {
  ScriptWords(text).end();
  stage.form();
  stage.desktop.user().close();
}

struct NamedAction {
  std::string_view verb;
  Action action;
};

constexpr NamedAction kActions[] = {
    {"abrir", open},
    {"ir", goTo},
    {"escribir", typeText},
    {"pegar", pasteText},
    {"vaciar", clearText},
    {"tecla", strikeKey},
    {"pulsar", pushButton},
    {"marcar", mark},
    {"desmarcar", unmark},
    {"opcion", selectOption},
    {"elegir", chooseEntry},
    {"fila", selectRow},
    {"columna", clickHeading},
    {"celda", pressCell},
    {"responder", queueAnswer},
    {"escoger", queueListChoice},
    {"fichero", queueFile},
    {"ver", showOnTranscript},
    {"sql", runStatement},
    {"cerrar", closeForm},
};

}  // namespace

void performAction(ScriptStage& stage, std::string_view line) {
  const auto blank = line.find_first_of(" \t");
  const std::string_view verb = line.substr(0, blank);
  const std::string_view text =
      blank == std::string_view::npos ? std::string_view() : line.substr(blank + 1);
  for (const NamedAction& each : kActions) {
    if (each.verb != verb) continue;
    each.action(stage, text);
    stage.desktop.settle();
    return;
  }
  throw Failure("no se conoce la acción " + inQuotes(verb));
}

}  // namespace korvantes::host
