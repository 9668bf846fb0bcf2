#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "runtime/screen/user_input.h"

namespace korvantes::scripts {

/// A user who acts on the topmost form of a desktop. On every kind of desktop the same actions
/// raise the same events in the same order, those of screen::UserInput.
///
/// Each action throws std::logic_error if no form is open. It does nothing where a user could not
/// act, for instance on a disabled control.
class User {
 public:
  User() = default;
  virtual ~User() = default;
  User(const User&) = delete;
  User& operator=(const User&) = delete;

  virtual void moveFocus(screen::Control& control);
  /// Presses and releases a key, then settles. If the press opens or closes a window, the release
  /// goes to that window and the form does not see it.
  virtual void stroke(const screen::Key& key) = 0;
  /// Types a text key by key.
  void type(std::string_view text);
  /// False if the control with the focus takes no text.
  virtual bool paste(std::string_view text);
  /// False if the control with the focus has no text that can be deleted.
  virtual bool clearText();
  virtual void click(screen::Control& control);
  virtual void tick(screen::ListView& list, std::size_t row, bool checked);
  /// Columns count from 1.
  virtual void clickColumn(screen::ListView& list, int column);
  virtual void selectEntry(screen::ComboBox& combo, int entry);
  virtual void typeEntry(screen::ComboBox& combo, std::string_view text);
  virtual void selectRow(screen::DataGrid& grid, std::size_t row);
  /// Columns count from 0.
  virtual void pressCellButton(screen::DataGrid& grid, int column);
  /// The window's close button.
  virtual void close();
  /// Runs what is queued: keys sent by the program, the release of an Enter that closed a dialog.
  virtual void settle() = 0;

 protected:
  /// Acts on the model of the topmost form directly, without a gesture.
  virtual bool tell(const std::function<bool(screen::UserInput&)>& action) = 0;
};

}  // namespace korvantes::scripts
