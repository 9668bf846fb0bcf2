#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "scripts/cues.h"
#include "scripts/user.h"

class QModelIndex;
class QPoint;
class QWidget;

namespace korvantes::desktop {
class ChoiceDialog;
class FormWindow;
class MessageDialog;
class WindowStack;
}  // namespace korvantes::desktop

namespace korvantes::scripts {

/// The user of real windows: sends them key and mouse events.
///
/// Where no mouse gesture does exactly one thing (focus on a button without a click, replacing all
/// of a field's text at once, a covered control), it acts on the model directly.
class WindowUser : public User {
 public:
  explicit WindowUser(desktop::WindowStack& stack) : stack_(stack) {}

  void moveFocus(screen::Control& control) override;
  void stroke(const screen::Key& key) override;
  bool paste(std::string_view text) override;
  void click(screen::Control& control) override;
  void tick(screen::ListView& list, std::size_t row, bool checked) override;
  void clickColumn(screen::ListView& list, int column) override;
  void selectEntry(screen::ComboBox& combo, int entry) override;
  void selectRow(screen::DataGrid& grid, std::size_t row) override;
  void pressCellButton(screen::DataGrid& grid, int column) override;
  void close() override;
  void settle() override;

  /// Answers a dialog that is shown: by a click, or by Enter, whose release then reaches the form.
  /// Throws std::logic_error if the dialog has no such button.
  void answer(desktop::MessageDialog& dialog, const Reply<screen::Answer>& reply);
  void answer(desktop::ChoiceDialog& dialog, const Reply<std::optional<std::size_t>>& reply);

 protected:
  bool tell(const std::function<bool(screen::UserInput&)>& action) override;

 private:
  desktop::FormWindow& window() const;
  bool clickCell(screen::Control& control, int row, int column,
                 const std::function<QPoint(const QModelIndex& cell)>& place);
  bool clickOn(screen::Control& control);
  void strike(QWidget& window, const screen::Key& key);
  void done();

  desktop::WindowStack& stack_;
};

}  // namespace korvantes::scripts
