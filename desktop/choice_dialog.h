#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "desktop/modal_dialog.h"
#include "runtime/screen/desktop.h"

class QLineEdit;

namespace korvantes::desktop {

class RowTable;

/// A list to choose a row from. Typing moves to the first row whose name begins with the typed
/// text, ignoring case and accents; Enter or a double click chooses, Escape cancels.
class ChoiceDialog : public ModalDialog {
 public:
  ChoiceDialog(WindowStack& stack, const screen::ListDialog& dialog);

  /// Valid once the dialog has been closed.
  std::optional<std::size_t> chosen() const { return chosen_; }

  RowTable& table() const { return table_; }
  QPushButton& leaveButton() const { return *leave_; }

 protected:
  void enterPressed() override;
  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void chooseCurrent();
  void search(const QString& begin);

  const screen::ListDialog& dialog_;
  std::vector<QString> folded_;  ///< names as they are compared
  QLineEdit& searched_;
  RowTable& table_;
  QPushButton* leave_ = nullptr;
  std::optional<std::size_t> chosen_;
};

}  // namespace korvantes::desktop
