#pragma once

#include "scripts/stage.h"

namespace korvantes::scripts {

/// No display: the user's actions go straight to the models.
class HeadlessStage : public StageOver<screen::HeadlessDesktop> {
 public:
  HeadlessStage() : StageOver(desktop_) {}

  bool moveFocus(screen::Control& control) override { return user().moveFocus(control); }
  void stroke(const screen::Key& key) override { desktop_.stroke(key); }
  void type(std::string_view text) override { desktop_.type(text); }
  bool paste(std::string_view text) override { return user().paste(text); }
  bool clearText() override { return user().clearText(); }
  bool click(screen::Control& control) override { return user().click(control); }
  bool tick(screen::ListView& list, std::size_t row, bool checked) override {
    return user().tick(list, row, checked);
  }
  bool clickColumn(screen::ListView& list, int column) override {
    return user().clickColumn(list, column);
  }
  bool selectEntry(screen::ComboBox& combo, int entry) override {
    return user().selectEntry(combo, entry);
  }
  bool typeEntry(screen::ComboBox& combo, std::string_view text) override {
    return user().typeEntry(combo, text);
  }
  bool selectRow(screen::DataGrid& grid, std::size_t row) override {
    return user().selectRow(grid, row);
  }
  bool pressCellButton(screen::DataGrid& grid, int column) override {
    return user().pressCellButton(grid, column);
  }
  void close() override { user().close(); }
  void settle() override { desktop_.settle(); }
  bool draws() const override { return false; }
  void capture(const std::filesystem::path&) override {}

 private:
  screen::UserInput user() const { return desktop_.user(); }

  screen::HeadlessDesktop desktop_;
};

}  // namespace korvantes::scripts
