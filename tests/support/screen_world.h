// A screen of the component on a small real database, with a test as its user.
#pragma once

#include <deque>
#include <functional>
#include <list>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "component/KORVAN.h"
#include "scripts/key_names.h"
#include "tests/support/current_desktop.h"
#include "tests/support/faulty_connection.h"
#include "tests/support/temporary_database.h"

namespace korvantes::support {

/// An open screen, as its user handles it.
template <class Form>
struct OpenScreen {
  scripts::HeadlessDesktop& desktop;
  Form& form;

  scripts::User& user() const { return desktop.user(); }
  template <class T = screen::Control>
  T& control(const std::string& identity) const {
    screen::Control* found = form.findControl(identity);
    if (found == nullptr) throw std::logic_error("no control " + identity);
    return dynamic_cast<T&>(*found);
  }
  void go(const std::string& identity) const {
    user().moveFocus(control(identity));
    user().settle();
  }
  void click(const std::string& identity) const {
    user().click(control(identity));
    user().settle();
  }
  void press(std::string_view key) const { user().stroke(*scripts::keyNamed(key)); }
  /// Goes to the box, empties it and types or pastes the text.
  void typeInto(const std::string& box, std::string_view text) const {
    go(box);
    user().clearText();
    user().type(text);
  }
  void pasteInto(const std::string& box, std::string_view text) const {
    go(box);
    user().clearText();
    user().paste(text);
    user().settle();
  }
};

/// An empty database, the component on it, and a desktop at noon of 24/11/2026.
class ScreenWorld {
  TemporaryDatabase base_;

 public:
  ScreenWorld();
  ScreenWorld(const ScreenWorld&) = delete;
  ScreenWorld& operator=(const ScreenWorld&) = delete;

  /// Opens the screen, lets the user play, closes it. A user may open further ones.
  void play(screen::Form& form, const std::function<void()>& user);
  /// Runs a statement that is not counted among the screens' calls.
  ado::Recordset sql(std::string_view statement) { return base_.connection()->Execute(statement); }
  template <class Statements>
  void sqlAll(const Statements& statements) {
    base_.connection()->BeginTrans();
    for (const auto& statement : statements) sql(statement);
    base_.connection()->CommitTrans();
  }
  std::size_t count(const std::string& table) {
    return sql("select * from " + table).RecordCount();
  }
  std::string path() const { return base_.path(); }
  /// The row that the user chooses in list dialogs from now on, from 0.
  void chooseFromLists(std::size_t row);

  CurrentDesktop desktop;
  std::shared_ptr<FaultyConnection> connection;
  /// Message boxes since the last clear: "[16] title | text".
  std::vector<std::string> messages;
  /// The answers to the next questions. After them `otherwise` is given, or the default button if
  /// that is not set.
  std::deque<screen::Answer> answers;
  std::optional<screen::Answer> otherwise;

 private:
  std::shared_ptr<KORVAN> component_;
  /// The users of the open screens, topmost last.
  std::list<std::function<void()>> users_;
};

}  // namespace korvantes::support
