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

/// The user of a headless desktop, with the functions of a Robot.
class HeadlessUser {
 public:
  explicit HeadlessUser(screen::HeadlessDesktop& desktop) : desktop_(desktop) {}
  bool moveFocus(screen::Control& control) { return desktop_.user().moveFocus(control); }
  void stroke(const screen::Key& key) { desktop_.stroke(key); }
  void type(std::string_view text) { desktop_.type(text); }
  bool paste(std::string_view text) { return desktop_.user().paste(text); }
  bool clearText() { return desktop_.user().clearText(); }
  bool click(screen::Control& control) { return desktop_.user().click(control); }
  bool tick(screen::ListView& list, std::size_t row, bool checked) {
    return desktop_.user().tick(list, row, checked);
  }
  bool clickColumn(screen::ListView& list, int column) {
    return desktop_.user().clickColumn(list, column);
  }
  bool selectEntry(screen::ComboBox& combo, int entry) {
    return desktop_.user().selectEntry(combo, entry);
  }
  bool typeEntry(screen::ComboBox& combo, std::string_view text) {
    return desktop_.user().typeEntry(combo, text);
  }
  bool selectRow(screen::DataGrid& grid, std::size_t row) {
    return desktop_.user().selectRow(grid, row);
  }
  bool pressCellButton(screen::DataGrid& grid, int column) {
    return desktop_.user().pressCellButton(grid, column);
  }
  void close() { desktop_.user().close(); }
  void settle() { desktop_.settle(); }

 private:
  screen::HeadlessDesktop& desktop_;
};

/// A desktop that is current as long as it lives.
template <class Desktop>
class Stage : public Desktop {
 public:
  Stage() { screen::Desktop::makeCurrent(this); }
  ~Stage() override { screen::Desktop::makeCurrent(nullptr); }
};

using RealStage = Stage<QtDesktop>;

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
void playOn(Desktop& desktop, screen::Form& form, User user, Act act) {
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
  playOn(desktop, form, Robot(desktop), act);
}

/// What a scenario writes down on a desktop. `prepare` sets up form and desktop, `act` plays.
template <class Desktop, class User, class Prepare, class Act>
Log recorded(Prepare prepare, Act act) {
  Stage<Desktop> desktop;
  SampleForm form;
  desktop.onClosed = [&](const screen::Form& closed) { form.log(closed.name(), "closed"); };
  prepare(desktop, form);
  playOn(desktop, form, User(desktop), [&](User& user) {
    form.log("state", form.state());
    act(user, form);
  });
  return form.events;
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
