#pragma once

#include <optional>
#include <string_view>

#include "desktop/qt_desktop.h"

class QAbstractItemView;
class QModelIndex;
class QPoint;

namespace korvantes::desktop {

class ChoiceDialog;
class FormWindow;
class MessageDialog;

/// Plays the user of a QtDesktop with key and mouse events sent to the real windows. Its functions
/// have the names, and bring about the events, of screen::UserInput and HeadlessDesktop, so that
/// one script drives both. They act on the topmost form; std::logic_error when none is open.
///
/// Where no gesture of a mouse does just one thing (the focus on a button without a click, all of a
/// field's text replaced in one go, a control that another one covers), the window is told
/// directly.
class Robot {
 public:
  explicit Robot(QtDesktop& desktop) : desktop_(desktop) {}

  bool moveFocus(screen::Control& control);
  /// Presses and releases a key, then settles. A press that opens or closes a window leaves its
  /// release to that window.
  void stroke(const screen::Key& key);
  /// Types a text key by key.
  void type(std::string_view text);
  bool paste(std::string_view text);
  bool clearText();
  bool click(screen::Control& control);
  bool tick(screen::ListView& list, std::size_t row, bool checked);
  /// Columns count from 1.
  bool clickColumn(screen::ListView& list, int column);
  bool selectEntry(screen::ComboBox& combo, int entry);
  bool typeEntry(screen::ComboBox& combo, std::string_view text);
  bool selectRow(screen::DataGrid& grid, std::size_t row);
  /// Columns count from 0.
  bool pressCellButton(screen::DataGrid& grid, int column);
  /// The frame button.
  void close();
  /// Runs what is queued: keys sent, releases of the Enter that closed a dialog.
  void settle();

  /// Answers a dialog that is shown: by a click, or by Enter, whose release then reaches the form.
  /// std::logic_error when the dialog has no such button.
  void answer(MessageDialog& dialog, screen::Answer answer, bool byEnter);
  void answer(ChoiceDialog& dialog, std::optional<std::size_t> row, bool byEnter);

 private:
  FormWindow& window() const;
  bool direct(const std::function<bool(screen::UserInput&)>& action);
  bool clickCell(screen::Control& control, int row, int column,
                 const std::function<QPoint(const QModelIndex& cell)>& place);
  bool clickOn(screen::Control& control);
  void done();

  QtDesktop& desktop_;
};

}  // namespace korvantes::desktop
