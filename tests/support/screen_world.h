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
#include "scripts/headless_desktop.h"
#include "scripts/key_names.h"
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

/// The stops of the Tab key, from the first one until they repeat.
std::vector<std::string> tabStops(screen::Form& form);

/// The controls that share a tab index or reach out of their frame or form; none in a good layout.
std::vector<std::string> misplaced(const screen::Form& form);

/// The connection of the screens: it tells of each statement before it passes, and can also refuse
/// to roll back.
class ScreenLink : public FaultyConnection {
 public:
  using FaultyConnection::FaultyConnection;
  std::function<void(std::string_view)> onStatement;
  int rollbackRefusals = 0;  ///< how many of the next ones it refuses

  ado::Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) override;
  void RollbackTrans() override;
};

/// An empty database, the component on it, and a desktop with Spanish settings at noon of
/// 24/11/2026.
class ScreenWorld {
  TemporaryDatabase base_;

 public:
  ScreenWorld();
  ~ScreenWorld();
  ScreenWorld(const ScreenWorld&) = delete;
  ScreenWorld& operator=(const ScreenWorld&) = delete;

  /// Opens the screen, lets the user play, closes it. A user may open further ones.
  void play(screen::Form& form, const std::function<void()>& user);
  /// Runs a statement beside the screens, uncounted.
  ado::Recordset sql(std::string_view statement) { return base_.connection()->Execute(statement); }
  template <class Statements>
  void sqlAll(const Statements& statements) {
    base_.connection()->BeginTrans();
    for (const auto& statement : statements) sql(statement);
    base_.connection()->CommitTrans();
  }
  std::string path() const { return base_.path(); }
  /// What the user chooses in the next list dialogs, by its place from 0.
  void chooseFromLists(std::size_t row);

  scripts::HeadlessDesktop desktop;
  std::shared_ptr<ScreenLink> connection;
  /// Message boxes since the last clear: "[16] title | text".
  std::vector<std::string> messages;
  /// How the user answers the next questions; `otherwise` when there is none left, and the default
  /// button without that.
  std::deque<screen::Answer> answers;
  std::optional<screen::Answer> otherwise;

 private:
  std::shared_ptr<KORVAN> component_;
  screen::Desktop* former_;
  /// Who plays the open screens, topmost last.
  std::list<std::function<void()>> users_;
};

}  // namespace korvantes::support
