#pragma once

#include "desktop/application.h"
#include "desktop/robot.h"
#include "scripts/stage.h"

namespace korvantes::scripts {

/// Real windows, on the display or, without one, drawn in memory: the user's actions are key and
/// mouse events sent to them. It is the process's window system for its lifetime.
class WindowStage : public StageOver<desktop::QtDesktop> {
 public:
  WindowStage() : StageOver(desktop_), robot_(desktop_) {}

  bool moveFocus(screen::Control& control) override { return robot_.moveFocus(control); }
  void stroke(const screen::Key& key) override { robot_.stroke(key); }
  void type(std::string_view text) override { robot_.type(text); }
  bool paste(std::string_view text) override { return robot_.paste(text); }
  bool clearText() override { return robot_.clearText(); }
  bool click(screen::Control& control) override { return robot_.click(control); }
  bool tick(screen::ListView& list, std::size_t row, bool checked) override {
    return robot_.tick(list, row, checked);
  }
  bool clickColumn(screen::ListView& list, int column) override {
    return robot_.clickColumn(list, column);
  }
  bool selectEntry(screen::ComboBox& combo, int entry) override {
    return robot_.selectEntry(combo, entry);
  }
  bool typeEntry(screen::ComboBox& combo, std::string_view text) override {
    return robot_.typeEntry(combo, text);
  }
  bool selectRow(screen::DataGrid& grid, std::size_t row) override {
    return robot_.selectRow(grid, row);
  }
  bool pressCellButton(screen::DataGrid& grid, int column) override {
    return robot_.pressCellButton(grid, column);
  }
  void close() override { robot_.close(); }
  void settle() override { robot_.settle(); }
  bool draws() const override { return true; }
  void capture(const std::filesystem::path& file) override { desktop_.capture(file.string()); }

 private:
  desktop::Application application_;
  desktop::QtDesktop desktop_;
  desktop::Robot robot_;
};

}  // namespace korvantes::scripts
