// A settlement screen on a small real database, with a test as its user.
#pragma once

#include <deque>
#include <functional>
#include <list>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "component/KORVAN.h"
#include "outside/screen/headless_desktop.h"
#include "settlement/frmNewLiquidAgentes.h"
#include "tests/support/faulty_connection.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::settlement {

/// The open screen, as its user handles it.
struct Screen {
  screen::HeadlessDesktop& desktop;
  frmNewLiquidAgentes& form;

  screen::Control& control(const std::string& identity) const;
  screen::TextBox& text(int index) const;
  screen::ListView& list() const;

  /// Goes to the box, empties it and pastes or types the text.
  void paste(int index, std::string_view text) const;
  void type(int index, std::string_view text) const;
  void go(const std::string& identity) const;
  void click(const std::string& identity) const;
  void tick(std::size_t row, bool checked = true) const;
  /// Looks the agent up and searches with the filters as given.
  void search(std::string_view agent, bool collected, bool pending) const;
  /// Row on screen of a delivery note, by its key.
  std::size_t rowOf(int note) const;
  /// What the fields and the list show, for comparison before and after.
  std::vector<std::string> contents() const;
};

/// The connection under test, which can also refuse to roll back.
class Link : public support::FaultyConnection {
 public:
  using FaultyConnection::FaultyConnection;
  int rollbackRefusals = 0;  ///< how many of the next ones it refuses
  void RollbackTrans() override {
    if (rollbackRefusals-- > 0) throw ado::Error(14, "sin conexión");
    FaultyConnection::RollbackTrans();
  }
};

/// Agent 5 has the regime 2 with rates from 01/01/2020 (18, 15) and 01/07/2026 (21, 19), agent 6 a
/// Null regime, agent 7 a regime without rates. Notes of agent 5, all free, on invoices without
/// receipts: 1 (commission 1,93), 2 (without lines), 3 (10,00), 4 (-50,00). Today is 24/11/2026.
class World {
 public:
  World();
  ~World();

  /// Opens the screen on a settlement, lets the user play, closes it.
  void show(const std::function<void(Screen&)>& user, int nLiqui = 0);
  /// Runs a statement beside the screen, unrecorded.
  ado::Recordset sql(std::string_view statement);
  /// Every row of every table that a settlement touches.
  std::vector<std::string> stored();
  /// Saves the notes as a settlement of agent 5, through the screen; gives its number.
  int settle(const std::vector<int>& notes);
  std::string path() const { return folder_.file("prueba.db"); }

  screen::HeadlessDesktop desktop;
  std::shared_ptr<Link> connection;
  /// Message boxes since the last clear: "[16] title | text".
  std::vector<std::string> messages;
  /// How the user answers the next questions; the default button when there is none left.
  std::deque<screen::Answer> answers;

 private:
  support::TemporaryFolder folder_;
  std::shared_ptr<ado::Connection> real_;
  std::shared_ptr<KORVAN> component_;
  screen::Desktop* former_;
  /// Who plays the open screens, topmost last.
  std::list<std::function<void(screen::Form&)>> users_;
};

}  // namespace korvantes::settlement
