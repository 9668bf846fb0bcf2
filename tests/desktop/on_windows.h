#pragma once

#include <QApplication>
#include <QTimer>
#include <QWidget>
#include <stdexcept>

#include "desktop/form_window.h"
#include "scripts/windows/input_events.h"
#include "scripts/windows/window_desktop.h"
#include "tests/screen/on_stage.h"

namespace korvantes::desktop {

using screen::SampleForm;

/// A window or dialog of that type that is on the screen.
template <class Window>
Window& openWindow() {
  for (QWidget* each : QApplication::topLevelWidgets())
    if (auto* window = dynamic_cast<Window*>(each); window != nullptr && window->isVisible())
      return *window;
  throw std::logic_error("no such window is open");
}

/// A test with a form on windows.
class OnWindows : public screen::OnStage {
 protected:
  static void pressOn(QWidget& window, const char* key) {
    scripts::sendPress(window, scripts::keyNamed(key).value());
  }
  /// The widget of a control of the form that is on the screen.
  template <class Widget = QWidget>
  static Widget& widgetOf(const screen::Control& control) {
    return dynamic_cast<Widget&>(openWindow<FormWindow>().faceOf(control)->widget());
  }

  QtDesktop& desktop = dynamic_cast<QtDesktop&>(stage.desktop());
};

}  // namespace korvantes::desktop
