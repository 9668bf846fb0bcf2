#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "runtime/screen/form.h"

namespace korvantes::screen {

using Log = std::vector<std::string>;

/// A form with every kind of control, which writes down what happens to it.
class SampleForm : public Form {
 public:
  SampleForm();

  void Form_Load() override {
    if (load) load();
  }
  void Form_Unload() override { log.push_back("Form Unload"); }
  void Form_KeyUp(int& code, int shift) override;

  /// Adds a step to what an event does.
  static void also(std::function<void()>& event, std::function<void()> step);
  /// What was written down since the last call.
  Log taken() { return std::exchange(log, {}); }
  /// What the user can see of it: focus, texts, marks.
  std::string state() const;

  Frame box{*this, "box"}, inner{*this, "inner"};
  Label heading{*this, "heading"};
  ControlArray<TextBox> Text1{*this, "Text1"};  ///< 0 and 1 are free, 2 takes six digits
  CheckBox check{*this, "check"};
  OptionButton first{*this, "first"}, second{*this, "second"};
  ComboBox fixedList{*this, "fixedList"}, openList{*this, "openList"};
  PictureButton save{*this, "save"}, leave{*this, "leave"};
  ListView list{*this, "list"};  ///< 40 rows
  DataGrid grid{*this, "grid"};  ///< 60 rows, field 0 hidden, a button in column 2
  Image image{*this, "image"};
  Shape shape{*this, "shape"};
  CommonDialog files{*this, "files"};

  std::function<void()> load;
  std::function<void(int&)> keyUp;
  Log log;

 private:
  void layOut();
  void logEvents(Control& control);
};

/// Rows "Agente 1" … with a date, numbered in field 0.
ado::Recordset sampleRows(int count);

}  // namespace korvantes::screen
