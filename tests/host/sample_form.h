#pragma once

#include "outside/screen/form.h"

namespace korvantes::host {

/// A form with a control of each kind that scripts act on.
class SampleForm : public screen::Form {
 public:
  SampleForm();

  bool failsToLoad = false;
  void Form_Load() override;
  void Form_KeyUp(int& keyCode, int shift) override;

  screen::ControlArray<screen::TextBox> Text1{*this, "Text1"};
  screen::Frame fraOff{*this, "fraOff"};
  screen::CheckBox Check1{*this, "Check1"};
  screen::OptionButton OptionA{*this, "Option1", 0};
  screen::OptionButton OptionB{*this, "Option1", 1};
  screen::ComboBox cboFixed{*this, "cboFixed"};
  screen::ComboBox cboFree{*this, "cboFree"};
  screen::PictureButton cmdAsk{*this, "cmdAsk"};
  screen::PictureButton cmdHidden{*this, "cmdHidden"};
  screen::Label lblAnswer{*this, "lblAnswer"};
  screen::ListView ListView1{*this, "ListView1"};
  screen::DataGrid dbgRows{*this, "dbgRows"};
  screen::CommonDialog dlgFile{*this, "dlgFile"};

 private:
  void ask();
  void fillRows();
};

}  // namespace korvantes::host
