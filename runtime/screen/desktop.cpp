#include "runtime/screen/desktop.h"

#include <chrono>
#include <ctime>
#include <stdexcept>

#include "runtime/screen/conversions.h"

namespace korvantes::screen {

namespace {

/// Holds the current desktop.
Desktop*& currentDesktop() {
  static Desktop* current = nullptr;
  return current;
}

}  // namespace

Answer MessageBox::defaultAnswer() const {
  if (!yesNo()) return Answer::Ok;
  return (style & style::DefaultSecond) != 0 ? Answer::No : Answer::Yes;
}

Desktop::Desktop() = default;

Desktop::~Desktop() {
  if (currentDesktop() == this) makeCurrent(nullptr);
}

Desktop& Desktop::current() {
  if (currentDesktop() == nullptr) throw std::logic_error("No hay ningún escritorio abierto");
  return *currentDesktop();
}

Desktop* Desktop::makeCurrent(Desktop* desktop) {
  return std::exchange(currentDesktop(), desktop);
}

ado::Moment Desktop::now() const {
  const std::time_t seconds =
      std::chrono::system_clock::to_time_t(std::chrono::system_clock::now());
  std::tm local{};
  localtime_r(&seconds, &local);
  return {{local.tm_year + 1900, local.tm_mon + 1, local.tm_mday},
          (local.tm_hour * 60 + local.tm_min) * 60 + local.tm_sec};
}

const Regional& currentRegional() {
  static const Regional kMachine = Regional::ofMachine();
  return currentDesktop() != nullptr ? currentDesktop()->regional() : kMachine;
}

Answer MsgBox(const std::string& text, int boxStyle, std::string_view title) {
  return Desktop::current().messageBox({text, boxStyle, std::string(title)});
}

void SendKeys(std::string_view keys) {
  Desktop::current().sendKeys(keys);
}

void DoEvents() {
  Desktop::current().processEvents();
}

}  // namespace korvantes::screen
