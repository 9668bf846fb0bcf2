#pragma once

#include <map>

#include "desktop/modal_dialog.h"
#include "runtime/screen/desktop.h"

namespace korvantes::desktop {

/// A message box in Spanish, whatever the locale. Escape and the close button mean Aceptar, or No
/// for a question: closing a question must not do what it asks about.
class MessageDialog : public ModalDialog {
 public:
  MessageDialog(WindowStack& stack, const screen::MessageBox& box);

  /// Valid once the dialog has been closed.
  screen::Answer answer() const { return answer_; }
  /// nullptr if the box has no such button.
  QPushButton* button(screen::Answer answer) const;

 protected:
  void enterPressed() override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void add(const QString& caption, screen::Answer answer);
  void choose(screen::Answer answer);

  QString text_;
  screen::Answer default_;
  screen::Answer answer_;
  std::map<screen::Answer, QPushButton*> buttons_;
};

}  // namespace korvantes::desktop
