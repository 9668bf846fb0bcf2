#pragma once

#include <QApplication>
#include <QWidget>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "desktop/form_window.h"
#include "desktop/robot.h"
#include "tests/desktop/sample_form.h"

namespace korvantes::desktop {

using Log = std::vector<std::string>;

/// Windows that are the current desktop as long as they live.
class RealStage : public QtDesktop {
 public:
  RealStage() { screen::Desktop::makeCurrent(this); }
  ~RealStage() override { screen::Desktop::makeCurrent(nullptr); }
};

/// The widget of a control on the open form window.
inline QWidget& widgetOf(const screen::Control& control) {
  for (QWidget* each : QApplication::topLevelWidgets())
    if (auto* window = dynamic_cast<FormWindow*>(each);
        window != nullptr && &window->form() == &control.form())
      return window->faceOf(control)->widget();
  throw std::logic_error("no window shows " + control.identity());
}

/// Shows the form, lets the user act on it once, and closes it.
template <class Desktop, class User, class Act>
void playOn(Desktop& desktop, screen::Form& form, User& user, Act act) {
  bool acted = false;
  desktop.whileShown = [&](screen::Form& shown) {
    if (&shown != &form || acted) return shown.Unload();
    acted = true;
    act(user);
    if (!desktop.forms().empty()) user.settle();
  };
  form.Show();
}

template <class Act>
void playReal(RealStage& desktop, screen::Form& form, Act act) {
  Robot robot(desktop);
  playOn(desktop, form, robot, act);
}

/// A test with a form on windows.
class OnWindows : public testing::Test {
 protected:
  template <class Act>
  void play(Act act) {
    playReal(desktop, form, act);
  }
  RealStage desktop;
  SampleForm form;
};

}  // namespace korvantes::desktop
