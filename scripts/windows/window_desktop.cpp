#include "scripts/windows/window_desktop.h"

#include <QCoreApplication>
#include <QPixmap>
#include <QWidget>

#include "desktop/look.h"
#include "desktop/window_stack.h"
#include "runtime/ado/error.h"
#include "scripts/windows/window_user.h"

namespace korvantes::scripts {

WindowDesktop::WindowDesktop() : user_(std::make_unique<WindowUser>(stack())) {}

WindowDesktop::~WindowDesktop() = default;

User& WindowDesktop::user() {
  return *user_;
}

void WindowDesktop::capture(const std::filesystem::path& file) {
  QCoreApplication::processEvents();
  QWidget* const window = stack().top();
  if (window != nullptr && !window->grab().save(desktop::toQt(file.string()), "png"))
    throw ado::Error(0, "No se puede escribir el fichero " + file.string());
}

void WindowDesktop::attend(screen::Form& form, desktop::FormWindow& window) {
  if (!played()) return QtDesktop::attend(form, window);
  while (form.loaded()) {
    QCoreApplication::processEvents();
    // A copy: the callback may replace itself while it runs.
    if (const auto play = whileShown; form.loaded() && play) play(form);
  }
}

void WindowDesktop::attend(const screen::MessageBox& box, desktop::MessageDialog& dialog) {
  if (!played() && !onMessage) return QtDesktop::attend(box, dialog);
  QCoreApplication::processEvents();
  user_->answer(dialog, answer(box));
}

void WindowDesktop::attend(const screen::ListDialog& list, desktop::ChoiceDialog& dialog) {
  if (!played() && !onList) return QtDesktop::attend(list, dialog);
  QCoreApplication::processEvents();
  user_->answer(dialog, answer(list));
}

std::optional<std::string> WindowDesktop::chooseFile(const screen::FileDialog& dialog) {
  if (!played() && !onFile) return QtDesktop::chooseFile(dialog);
  stack().passed();
  return answer(dialog);
}

void WindowDesktop::closed(const screen::Form& form) {
  if (onClosed) onClosed(form);
}

ado::Moment WindowDesktop::now() const {
  return clock ? *clock : QtDesktop::now();
}

}  // namespace korvantes::scripts
