#include "scripts/controls.h"

namespace korvantes::scripts {

screen::Form& Run::form() const {
  if (stage.forms().empty()) throw Failure("no hay ninguna pantalla abierta");
  return *stage.forms().back();
}

screen::Control& findControl(const Run& run, std::string_view identity) {
  screen::Control* control = run.form().findControl(identity);
  if (control == nullptr) throw Failure("no hay ningún control " + inQuotes(identity));
  return *control;
}

screen::Control& usableControl(const Run& run, std::string_view identity) {
  screen::Control& control = findControl(run, identity);
  if (!control.shown()) throw Failure(control.identity() + " no está visible");
  if (!control.usable()) throw Failure(control.identity() + " está deshabilitado");
  return control;
}

}  // namespace korvantes::scripts
