#include "scripts/actions.h"

#include <cstdint>
#include <optional>
#include <string>

#include "scripts/controls.h"
#include "scripts/failure.h"
#include "scripts/key_names.h"
#include "scripts/printed_values.h"
#include "scripts/words.h"

namespace korvantes::scripts {
namespace {

/// One action. The text is everything after the blank that follows the verb, unchanged.
using Action = void (*)(Run& run, std::string_view text);

void open(Run& run, std::string_view text) {
  Words words(text);
  const std::string_view name = words.word("el nombre de la pantalla");
  std::optional<std::int32_t> number;
  if (!words.atEnd()) number = static_cast<std::int32_t>(words.number("el número", 0));
  words.end();
  const auto screen = run.screens.find(name);
  if (screen == run.screens.end()) throw Failure("no se conoce la pantalla " + inQuotes(name));
  screen->second(number);
}

void goTo(Run& run, std::string_view text) {
  Words words(text);
  screen::Control& control = usableControl(run, words.word("el control"));
  words.end();
  if (!control.canTakeFocus()) throw Failure(control.identity() + " no puede recibir el foco");
  run.user().moveFocus(control);
}

void requireFocus(const Run& run) {
  if (run.form().ActiveControl() == nullptr) throw Failure("ningún control tiene el foco");
}

void requireText(std::string_view text) {
  if (text.empty()) throw Failure("falta el texto");
}

void typeText(Run& run, std::string_view text) {
  requireText(text);
  requireFocus(run);
  run.user().type(text);
}

void pasteText(Run& run, std::string_view text) {
  requireText(text);
  requireFocus(run);
  if (!run.user().paste(text)) throw Failure("el control con el foco no admite texto");
}

void clearText(Run& run, std::string_view text) {
  Words(text).end();
  requireFocus(run);
  if (!run.user().clearText())
    throw Failure("el control con el foco no tiene texto que se pueda borrar");
}

void strikeKey(Run& run, std::string_view text) {
  Words words(text);
  const std::string_view name = words.word("la tecla");
  words.end();
  run.form();
  const std::optional<screen::Key> key = keyNamed(name);
  if (!key) throw Failure("no se conoce la tecla " + inQuotes(name));
  run.user().stroke(*key);
}

void pushButton(Run& run, std::string_view text) {
  Words words(text);
  auto& button = usableControl<screen::PictureButton>(run, words.word("el botón"), "un botón");
  words.end();
  run.user().click(button);
}

/// If the mark is already as wanted, no click is needed; the focus moves there anyway.
void setMark(Run& run, std::string_view text, bool checked) {
  Words words(text);
  screen::Control& control = usableControl(run, words.word("la casilla"));
  if (auto* list = dynamic_cast<screen::ListView*>(&control)) {
    const std::size_t row = words.number("la fila", 1);
    words.end();
    if (row > list->Count())
      throw Failure(list->identity() + " no tiene la fila " + std::to_string(row));
    if (list->item(row - 1).Checked == checked)
      run.user().moveFocus(control);
    else
      run.user().tick(*list, row - 1, checked);
    return;
  }
  const auto* box = dynamic_cast<const screen::CheckBox*>(&control);
  if (box == nullptr) throw Failure(control.identity() + " no es una casilla");
  words.end();
  if ((box->Value() != 0) == checked)
    run.user().moveFocus(control);
  else
    run.user().click(control);
}

void mark(Run& run, std::string_view text) {
  setMark(run, text, true);
}
void unmark(Run& run, std::string_view text) {
  setMark(run, text, false);
}

void selectOption(Run& run, std::string_view text) {
  Words words(text);
  auto& option =
      usableControl<screen::OptionButton>(run, words.word("la opción"), "un botón de opción");
  words.end();
  run.user().click(option);
}

void chooseEntry(Run& run, std::string_view text) {
  Words words(text);
  auto& combo =
      usableControl<screen::ComboBox>(run, words.word("la lista"), "una lista desplegable");
  if (const auto typed = withoutQuotes(words.rest())) {
    if (!combo.Editable()) throw Failure("en " + combo.identity() + " no se puede escribir");
    run.user().typeEntry(combo, *typed);
    return;
  }
  const std::size_t entry = words.number("la entrada", 0);
  words.end();
  if (entry >= combo.list().size())
    throw Failure(combo.identity() + " no tiene la entrada " + std::to_string(entry));
  run.user().selectEntry(combo, static_cast<int>(entry));
}

void selectRow(Run& run, std::string_view text) {
  Words words(text);
  auto& grid = usableControl<screen::DataGrid>(run, words.word("la cuadrícula"), "una cuadrícula");
  const std::size_t row = words.number("la fila", 1);
  words.end();
  if (row > grid.RowCount())
    throw Failure(grid.identity() + " no tiene la fila " + std::to_string(row));
  run.user().selectRow(grid, row - 1);
}

void clickHeading(Run& run, std::string_view text) {
  Words words(text);
  auto& list = usableControl<screen::ListView>(run, words.word("la lista"), "una lista");
  const std::size_t column = words.number("la columna", 1);
  words.end();
  if (column > list.ColumnHeaders.size() || list.ColumnHeaders[column - 1].Width == 0)
    throw Failure(list.identity() + " no muestra la columna " + std::to_string(column));
  run.user().clickColumn(list, static_cast<int>(column));
}

void pressCell(Run& run, std::string_view text) {
  Words words(text);
  auto& grid = usableControl<screen::DataGrid>(run, words.word("la cuadrícula"), "una cuadrícula");
  const std::size_t column = words.number("la columna", 0);
  words.end();
  if (!grid.currentRow()) throw Failure(grid.identity() + " no tiene fila actual");
  if (column >= grid.ColumnCount() || !grid.Columns(column).Visible || !grid.Columns(column).Button)
    throw Failure(grid.identity() + " no tiene botón en la columna " + std::to_string(column));
  run.user().pressCellButton(grid, static_cast<int>(column));
}

void queueAnswer(Run& run, std::string_view text) {
  using Button = QueuedAnswers::Button;
  Words words(text);
  const std::string_view name = words.word("la respuesta");
  words.end();
  if (name == "Sí")
    run.answers.add(Button::Yes);
  else if (name == "No")
    run.answers.add(Button::No);
  else if (name == "Aceptar")
    run.answers.add(Button::Ok);
  else if (name == "Enter")
    run.answers.add(Button::EnterKey);
  else
    throw Failure("no se conoce la respuesta " + inQuotes(name));
}

void queueListChoice(Run& run, std::string_view text) {
  Words words(text);
  QueuedAnswers::ListChoice choice;
  if (Words(words).word("la fila") == "nada")
    words.word("la fila");
  else
    choice.row = words.number("la fila", 1);
  if (!words.atEnd()) {
    if (words.rest() != "Enter") throw Failure("sobra " + inQuotes(words.rest()));
    choice.byEnter = true;
  }
  run.answers.add(choice);
}

void queueFile(Run& run, std::string_view text) {
  const std::string_view path = Words(text).rest();
  if (path.empty()) throw Failure("falta la ruta");
  if (path == "nada")
    run.answers.addFile(std::nullopt);
  else
    run.answers.addFile(std::string(path));
}

void runStatement(Run& run, std::string_view text) {
  if (Words(text).atEnd()) throw Failure("falta la sentencia");
  printStatement(run.base, text, run.transcript.stream());
}

std::string pictureName(std::string_view text) {
  const std::string_view name = Words(text).rest();
  if (name.empty()) throw Failure("falta el fichero");
  if (!name.ends_with(".png")) throw Failure("el nombre de una captura acaba en .png");
  return std::string(name);
}

void takePicture(Run& run, std::string_view text) {
  const std::string name = pictureName(text);
  run.form();
  run.pictures.take(name);
}

void queuePicture(Run& run, std::string_view text) {
  run.pictures.takeOfNextDialog(pictureName(text));
}

void closeForm(Run& run, std::string_view text) {
  Words(text).end();
  run.form();
  run.user().close();
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
    {"captura", takePicture},
    {"captura-dialogo", queuePicture},
    {"cerrar", closeForm},
};

}  // namespace

void performAction(Run& run, std::string_view line) {
  const auto blank = line.find_first_of(" \t");
  const std::string_view verb = line.substr(0, blank);
  const std::string_view text =
      blank == std::string_view::npos ? std::string_view() : line.substr(blank + 1);
  for (const NamedAction& each : kActions) {
    if (each.verb != verb) continue;
    each.action(run, text);
    run.user().settle();
    return;
  }
  throw Failure("no se conoce la acción " + inQuotes(verb));
}

}  // namespace korvantes::scripts
