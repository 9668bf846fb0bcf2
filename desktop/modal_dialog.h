#pragma once

#include <QDialog>

class QPushButton;

namespace korvantes::desktop {

class WindowStack;

/// One of our dialogs. It is on the stack while shown, and records whether Enter closed it: the
/// release of that key then belongs to the form below.
class ModalDialog : public QDialog {
 public:
  ModalDialog(WindowStack& stack, const QString& title);
  ~ModalDialog() override;

  /// Shows the dialog on the stack without waiting for an answer.
  void open() override;
  void done(int result) override;

 protected:
  QPushButton& addButton(const QString& caption);
  /// What Enter does on anything but a button.
  virtual void enterPressed() = 0;
  bool eventFilter(QObject* object, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void closeByEnter(const std::function<void()>& act, const QKeyEvent& event);

  WindowStack& stack_;
  bool onStack_ = false;
  bool byEnter_ = false;
};

}  // namespace korvantes::desktop
