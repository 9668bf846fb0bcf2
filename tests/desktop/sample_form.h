#pragma once

#include <string>
#include <vector>

#include "runtime/screen/form.h"

namespace korvantes::desktop {

/// A form with every kind of control, which writes down what happens to it.
class SampleForm : public screen::Form {
 public:
  SampleForm();

  void Form_Load() override;
  void Form_Unload() override { log("Form", "Unload"); }
  void Form_KeyUp(int& keyCode, int shift) override;

  void log(const std::string& who, const std::string& what);
  /// What the user can see of it: focus, texts, marks.
  std::string state() const;

  screen::Frame box{*this, "box"}, inner{*this, "inner"};
  screen::Label heading{*this, "heading"};
  screen::ControlArray<screen::TextBox> Text1{*this, "Text1"};
  screen::CheckBox check{*this, "check"};
  screen::OptionButton first{*this, "first"}, second{*this, "second"};
  screen::ComboBox fixedList{*this, "fixedList"}, openList{*this, "openList"};
  screen::PictureButton save{*this, "save"}, leave{*this, "leave"};
  screen::ListView list{*this, "list"};
  screen::DataGrid grid{*this, "grid"};
  screen::Image image{*this, "image"};
  screen::Shape shape{*this, "shape"};
  screen::CommonDialog files{*this, "files"};

  std::vector<std::string> events;

 private:
  void layOut();
  void logEvents(screen::Control& control);
};

/// Rows "Agente 1" … with a date and an amount, numbered in field 0.
ado::Recordset sampleRows(int count);

}  // namespace korvantes::desktop
