#pragma once

#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "runtime/screen/headless_desktop.h"

namespace korvantes::screen {

using Log = std::vector<std::string>;

/// A form with one control of most kinds, which writes down every event.
class SampleForm : public Form {
 public:
  SampleForm() : Form("frmMuestra") {
    Caption = "Muestra";
    KeyPreview = true;
    int tab = 0;
    for (Control* control :
         std::initializer_list<Control*>{&first, &second, &check, &button, &combo, &list}) {
      control->TabIndex = tab++;
      watch(*control);
    }
    for (TextBox* box : {&first, &second}) {
      box->Change = [this, box] { log.push_back(box->identity() + " Change " + box->Text()); };
      box->KeyPress = [this, box](int& code) {
        log.push_back(box->identity() + " KeyPress " + std::to_string(code));
      };
    }
  }

  void Form_Load() override {
    if (load) load();
  }
  void Form_Unload() override { log.push_back("Form_Unload"); }
  void Form_KeyUp(int& code, int) override {
    log.push_back("Form_KeyUp " + std::to_string(code));
    if (keyUp) keyUp(code);
  }

  /// Adds a step behind what an event writes down.
  void also(std::function<void()>& event, std::function<void()> step) {
    event = [before = event, step = std::move(step)] {
      before();
      step();
    };
  }
  /// What was written down since the last call.
  Log taken() { return std::exchange(log, {}); }

  TextBox first{*this, "Text1", 0}, second{*this, "Text1", 1};
  CheckBox check{*this, "Check1"};
  PictureButton button{*this, "cmdGrabar"};
  ComboBox combo{*this, "cboPais"};
  ListView list{*this, "ListView1"};
  std::function<void()> load;
  std::function<void(int&)> keyUp;
  Log log;

 private:
  void watch(Control& control) {
    const auto write = [this, &control](const char* event) {
      return [this, &control, event] { log.push_back(control.identity() + " " + event); };
    };
    control.GotFocus = write("GotFocus");
    control.LostFocus = write("LostFocus");
    control.Click = write("Click");
  }
};

/// A headless desktop that is current as long as it lives, and shows forms to a user in the test.
class Stage : public HeadlessDesktop {
 public:
  Stage() {
    regional(Regional::named("es-ES"));
    makeCurrent(this);
    onMessage = [this](const MessageBox& box) {
      messages.push_back(box.title + " | " + box.text);
      return Reply<Answer>{box.defaultAnswer()};
    };
  }
  /// Shows the form, lets the user act on it and closes it. What happened before is forgotten.
  void play(SampleForm& form, const std::function<void()>& user) {
    whileShown = [&](Form& shown) {
      if (&shown != &form) return shown.Unload();
      form.log.clear();
      user();
      settle();
      form.Unload();
    };
    form.Show();
  }
  void press(std::string_view name) { stroke(keyNamed(name).value()); }

  Log messages;
};

/// A test with a form on a stage.
class OnStage : public testing::Test {
 protected:
  Stage stage;
  SampleForm form;
};

}  // namespace korvantes::screen
