#pragma once

#include <string_view>

#include "scripts/failure.h"
#include "scripts/run.h"

namespace korvantes::scripts {

/// A control of the topmost form, by its identity. Throws Failure if there is none.
screen::Control& findControl(const Run& run, std::string_view identity);

/// The same, for an action: also throws Failure if the control is hidden, disabled or in a disabled
/// frame.
screen::Control& usableControl(const Run& run, std::string_view identity);

/// The control cast to the kind that an action needs. Throws Failure "Text1(0) no es un botón"
/// otherwise.
template <class T>
T& usableControl(const Run& run, std::string_view identity, std::string_view kindName) {
  screen::Control& control = usableControl(run, identity);
  T* wanted = dynamic_cast<T*>(&control);
  if (wanted == nullptr) throw Failure(control.identity() + " no es " + std::string(kindName));
  return *wanted;
}

}  // namespace korvantes::scripts
