#include "host/script_controls.h"

namespace korvantes::host {

screen::Form& ScriptStage::form() const {
  if (desktop.forms().empty()) throw Failure("no hay ninguna pantalla abierta");
  return *desktop.forms().back();
}

screen::Control& findControl(const ScriptStage& stage, std::string_view identity) {
  screen::Control* control = stage.form().findControl(identity);
  if (control == nullptr) throw Failure("no hay ningún control " + inQuotes(identity));
  return *control;
}

screen::Control& usableControl(const ScriptStage& stage, std::string_view identity) {
  screen::Control& control = findControl(stage, identity);
  if (!control.shown()) throw Failure(control.identity() + " no está visible");
  if (!control.usable()) throw Failure(control.identity() + " está deshabilitado");
  return control;
}

}  // namespace korvantes::host
