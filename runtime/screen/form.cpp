#include "runtime/screen/form.h"

#include <algorithm>
#include <stdexcept>

#include "runtime/ado/text_order.h"
#include "runtime/screen/desktop.h"
#include "runtime/screen/handler_scope.h"

namespace korvantes::screen {

Form::Form(std::string name) : name_(std::move(name)) {}

Form::~Form() = default;

void Form::Show(int modal) {
  if (modal != 1) throw std::invalid_argument("Las pantallas solo se muestran de forma modal");
  if (showing_) throw std::logic_error("La pantalla " + name_ + " ya está abierta");
  Desktop& desktop = Desktop::current();
  load();
  if (loaded_) desktop.showModal(*this);
}

void Form::load() {
  if (loaded_) return;
  loaded_ = true;
  showing_ = false;
  active_ = wanted_ = held_ = nullptr;
  const HandlerScope scope(handlerDepth_);
  try {
    Form_Load();
  } catch (...) {
    loaded_ = false;
    throw;
  }
}

void Form::Unload() {
  if (!loaded_) return;
  loaded_ = false;
  showing_ = false;
  active_ = wanted_ = held_ = nullptr;
  // The window closes even if Form_Unload fails.
  struct Farewell {
    Form& form;
    ~Farewell() {
      if (form.observer_ != nullptr) form.observer_->unloaded();
    }
  } const farewell{*this};
  const HandlerScope scope(handlerDepth_);
  Form_Unload();
}

Control* Form::findControl(std::string_view identity) const {
  for (Control* control : controls_)
    if (ado::sameName(control->identity(), identity)) return control;
  return nullptr;
}

std::vector<Control*> Form::tabOrder() const {
  std::vector<Control*> order = controls_;
  std::stable_sort(order.begin(), order.end(), [](const Control* a, const Control* b) {
    return a->TabIndex() < b->TabIndex();
  });
  return order;
}

Control* Form::nextTabStop(const Control* from, bool backward) const {
  std::vector<Control*> order = tabOrder();
  if (backward) std::reverse(order.begin(), order.end());
  const auto place = std::find(order.begin(), order.end(), from);
  if (place != order.end()) std::rotate(order.begin(), place + 1, order.end());
  const auto stop = std::find_if(order.begin(), order.end(),
                                 [](const Control* control) { return control->isTabStop(); });
  return stop == order.end() ? nullptr : *stop;
}

void Form::Form_KeyUp(int&, int) {}

void Form::propertyChanged(const PropertyBase& property) {
  if (observer_ != nullptr) observer_->propertyChanged(nullptr, property);
}

}  // namespace korvantes::screen
