#include <string>
#include <vector>

#include "scripts/actions.h"
#include "scripts/control_text.h"
#include "scripts/controls.h"
#include "scripts/failure.h"
#include "scripts/words.h"

namespace korvantes::scripts {
namespace {

void printLines(Transcript& transcript, const std::vector<std::string>& lines) {
  for (const std::string& line : lines) transcript.line(line);
}

void printControl(Transcript& transcript, const screen::Control& control) {
  if (const auto* list = dynamic_cast<const screen::ListView*>(&control))
    printLines(transcript, listLines(*list));
  else if (const auto* grid = dynamic_cast<const screen::DataGrid*>(&control))
    printLines(transcript, gridLines(*grid));
  else
    transcript.line(controlLine(control));
}

}  // namespace

void showOnTranscript(Run& run, std::string_view text) {
  Words words(text);
  const std::string_view subject = words.word("qué hay que ver");
  words.end();
  const screen::Form& form = run.form();
  if (subject == "foco") {
    const screen::Control* active = form.ActiveControl();
    run.transcript.line("foco = " + (active == nullptr ? "ninguno" : active->identity()));
  } else if (subject == "pantalla") {
    printLines(run.transcript, formLines(form));
  } else if (const screen::Control* control = form.findControl(subject)) {
    printControl(run.transcript, *control);
  } else if (const auto dot = subject.rfind('.'); dot != std::string_view::npos) {
    run.transcript.line(
        propertyLine(findControl(run, subject.substr(0, dot)), subject.substr(dot + 1)));
  } else if (form.findProperty(subject) != nullptr) {
    run.transcript.line(propertyLine(form, subject));
  } else {
    throw Failure("no hay ningún control " + inQuotes(subject));
  }
}

}  // namespace korvantes::scripts
