#pragma once

#include <functional>
#include <string>
#include <utility>

#include "runtime/screen/form.h"

namespace korvantes::screen {

/// A form with every kind of control, which writes down what happens to it: "+t(0)" and "-t(0)" for
/// the focus that came and went, "t(0) press 65", "t(0) = A", "t(0) up 65", "form up 65/1" with the
/// shift state, "check Click", "list F1 on".
class SampleForm : public Form {
 public:
  SampleForm();

  void Form_Load() override {
    if (load) load();
  }
  void Form_Unload() override { write("form", "Unload"); }
  void Form_KeyUp(int& code, int shift) override;

  /// Adds a step to what an event does.
  static void also(std::function<void()>& event, std::function<void()> step);
  void write(const std::string& who, const std::string& what);
  /// What was written down since the last call, joined with ", ".
  std::string taken() { return std::exchange(log, {}); }

  Frame box{*this, "box"}, inner{*this, "inner"};
  Label heading{*this, "heading"};
  ControlArray<TextBox> text{*this, "t"};
  CheckBox check{*this, "check"};
  OptionButton first{*this, "first"}, second{*this, "second"};
  ComboBox fixedList{*this, "fixed"}, openList{*this, "open"};
  PictureButton save{*this, "save"}, leave{*this, "leave"};
  ListView list{*this, "list"};  ///< 40 rows
  DataGrid grid{*this, "grid"};  ///< 60 rows, field 0 hidden, a button in column 2
  Image image{*this, "image"};
  Shape shape{*this, "shape"};
  CommonDialog files{*this, "files"};

  std::function<void()> load;
  std::function<void(int&)> keyUp;
  std::string log;

 private:
  void layOut();
  void watch(Control& control);
};

/// Rows "Agente 1" … with an empty date, numbered in field 0.
ado::Recordset sampleRows(int count);

}  // namespace korvantes::screen
