// The agents' screen on a small real database, with a test as its user.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "agents/frmAgentes.h"
#include "component/KORVAN.h"
#include "outside/screen/headless_desktop.h"
#include "tests/support/faulty_connection.h"
#include "tests/support/temporary_database.h"

namespace korvantes::agents {

/// The open screen, as its user handles it.
struct Screen {
  screen::HeadlessDesktop& desktop;
  frmAgentes& form;

  template <class T = screen::Control>
  T& control(const std::string& identity) const {
    return dynamic_cast<T&>(*form.findControl(identity));
  }
  screen::TextBox& field(int index) const;
  std::string text(const std::string& list) const { return control<screen::ComboBox>(list).Text(); }
  std::size_t rows() const { return control<screen::DataGrid>("dboOper").RowCount(); }

  /// Goes to the field and types over it.
  void type(int index, std::string_view text) const;
  void click(const std::string& identity) const;
  void row(std::size_t place) const;
  /// What fields and lists show, how many agents are listed, and which is current.
  std::vector<std::string> contents() const;
};

/// The connection of the screen, which tells of each statement before it passes.
class Link : public support::FaultyConnection {
 public:
  using FaultyConnection::FaultyConnection;
  std::function<void(std::string_view)> onStatement;
  ado::Recordset Execute(std::string_view statement, long long* rowsAffected = nullptr) override {
    if (onStatement) onStatement(statement);
    return FaultyConnection::Execute(statement, rowsAffected);
  }
};

/// Agents 3 (province 28, country 34, regime 2, 7,5 %), 5 (province 99, country 33, regime 1) and 8
/// (nothing but a name). Provinces 01, 28 and 99; twelve countries, the tenth of them 034; regimes
/// 01 and 02.
class World {
 public:
  World();
  ~World();

  /// Opens the screen, lets the user play, closes it.
  void show(const std::function<void(Screen&)>& user);
  /// Runs a statement beside the screen, uncounted.
  ado::Recordset sql(std::string_view statement) { return base_.connection()->Execute(statement); }
  std::string path() const { return base_.path(); }
  /// Every agent, a line each.
  std::vector<std::string> stored();

  screen::HeadlessDesktop desktop;
  std::shared_ptr<Link> connection;
  /// Message boxes since the last clear: "[16] title | text".
  std::vector<std::string> messages;
  screen::Answer answer = screen::Answer::Yes;

 private:
  support::TemporaryDatabase base_;
  std::shared_ptr<KORVAN> component_;
  screen::Desktop* former_;
};

}  // namespace korvantes::agents
