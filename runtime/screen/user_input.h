#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>

#include "runtime/screen/form.h"
#include "runtime/screen/key.h"

namespace korvantes::screen {

/// What the user does to one form, as a face reports it. This is the only place that decides which
/// events follow, and in which order:
///
/// - moving the focus: LostFocus of the old control, then GotFocus of the new one. A SetFocus
///   inside LostFocus is carried out when that handler has ended, and the original target never
///   gets the focus; what was to follow there (the click on a button) is dropped.
/// - a key press in a text box: KeyPress, then the text, then Change. Enter on a button clicks it.
///   Tab moves the focus, with Shift backward; Alt and a letter is an access key. Arrows move
///   within lists, grids and groups of option buttons, Space ticks the row with the cursor.
/// - a key release: the form's KeyUp when it previews keys, then the control's, unless the form set
///   the code to 0. The release of Space clicks the button, check box or option button on which it
///   was pressed.
/// - a click: the focus moves first, then the control changes, then Click.
///
/// When the outermost handler has ended, a SetFocus made in it is carried out; then, if the control
/// with the focus can no longer hold it (hidden, disabled), the focus moves on to the next tab
/// stop. While LostFocus runs no control has the focus: a key that arrives meanwhile reaches only
/// the form.
///
/// An exception that leaves a handler becomes a critical message box with its text, under the
/// form's caption; the form stays usable. Actions on a control that is not usable do nothing and
/// return False. A form unloaded inside a handler gets no further events.
class UserInput {
 public:
  explicit UserInput(Form& form) : form_(form) {}

  /// The first tab stop gets the focus: once, when the form is shown.
  void shown();
  /// As a click on a field would.
  bool moveFocus(Control& control);
  void keyDown(const Key& key);
  void keyUp(const Key& key);
  /// Puts text at the caret of the control with the focus, character by character through its key
  /// filter, with one Change at the end: paste, drop, input methods. Line breaks become blanks.
  bool paste(std::string_view text);
  /// Selects the whole text of the control with the focus and deletes it.
  bool clearText();
  /// Alt and a letter: clicks the button, or moves the focus to the field, whose caption carries
  /// it.
  bool accessKey(char32_t letter);

  bool click(Control& control);
  bool tick(ListView& list, std::size_t row, bool checked);
  /// Columns count from 1.
  bool clickColumn(ListView& list, int column);
  bool editLabel(ListView& list, std::size_t row);
  bool selectEntry(ComboBox& combo, int entry);
  bool typeEntry(ComboBox& combo, std::string_view text);
  bool selectRow(DataGrid& grid, std::size_t row);
  /// Columns count from 0; only where the column has a button and there is a current row.
  bool pressCellButton(DataGrid& grid, int column);
  /// The window's close button, Alt+F4.
  void close();

 private:
  bool run(std::function<void()> handler);
  bool event(const std::function<void()>& handler);
  bool giveFocus(Control& target);
  bool focusFor(Control& control);
  void focusLost(Control& old);
  void settle();
  void typeOver(ComboBox& combo, std::string text);
  void tabKey(bool backward);
  bool chordKey(const Key& key);
  void controlKey(Control& control, const Key& key);
  void comboKey(ComboBox& combo, const Key& key);
  void listKey(ListView& list, const Key& key);
  void gridKey(DataGrid& grid, const Key& key);
  void optionKey(OptionButton& option, const Key& key);
  friend class TextEditor;
  Form& form_;
};

}  // namespace korvantes::screen
