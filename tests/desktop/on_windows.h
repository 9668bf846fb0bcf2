#pragma once

#include <QApplication>
#include <QWidget>
#include <stdexcept>

#include "desktop/form_window.h"
#include "scripts/windows/input_events.h"
#include "scripts/windows/window_desktop.h"
#include "tests/screen/on_stage.h"

namespace korvantes::desktop {

using screen::Log;
using screen::SampleForm;

/// A window or dialog of that type that is on the screen.
template <class Window>
Window& openWindow() {
  for (QWidget* each : QApplication::topLevelWidgets())
    if (auto* window = dynamic_cast<Window*>(each); window != nullptr && window->isVisible())
      return *window;
  throw std::logic_error("no such window is open");
}

inline void pressOn(QWidget& window, const char* key) {
  scripts::sendPress(window, scripts::keyNamed(key).value());
}

/// A test with a form on windows.
class OnWindows : public testing::Test, protected screen::Played {
 protected:
  OnWindows() : Played(std::make_unique<scripts::WindowDesktop>()) {}

  QtDesktop& desktop = dynamic_cast<QtDesktop&>(stage.desktop());
  /// The widget of a control of the form that is on the screen.
  static QWidget& widgetOf(const screen::Control& control) {
    return openWindow<FormWindow>().faceOf(control)->widget();
  }
};

}  // namespace korvantes::desktop
