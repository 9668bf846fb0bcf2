// A settlement screen on a small real database, with a test as its user.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "settlement/frmNewLiquidAgentes.h"
#include "tests/support/screen_world.h"

namespace korvantes::settlement {

/// The open screen, as its user handles it.
struct Screen : support::OpenScreen<frmNewLiquidAgentes> {
  screen::TextBox& text(int index) const;
  screen::ListView& list() const { return control<screen::ListView>("ListView1"); }

  void paste(int index, std::string_view text) const;
  void type(int index, std::string_view text) const;
  void tick(std::size_t row, bool checked = true) const;
  /// Looks the agent up and searches with the filters as given.
  void search(std::string_view agent, bool collected, bool pending) const;
  /// Searches the notes of agent 5, whatever their receipts, and makes out a settlement of today.
  void makeOut(const std::vector<int>& notes) const;
  /// Row on screen of a delivery note, by its key.
  std::size_t rowOf(int note) const;
  /// What the fields and the list show, for comparison before and after.
  std::vector<std::string> contents() const;
};

/// Agent 5 has the regime 2 with rates from 01/01/2020 (18, 15) and 01/07/2026 (21, 19), agent 6 a
/// Null regime, agent 7 a regime without rates. Notes of agent 5, all free, on invoices without
/// receipts: 1 (commission 1,93), 2 (without lines), 3 (10,00), 4 (-50,00). Today is 24/11/2026.
class World : public support::ScreenWorld {
 public:
  World();

  /// Opens the screen on a settlement, lets the user play, closes it.
  void show(const std::function<void(Screen&)>& user, int nLiqui = 0);
  void open(int settlement, const std::function<void(Screen&)>& user) { show(user, settlement); }
  /// Adds a free note with one line that earns its whole amount.
  void addNote(int note, int agent, const std::string& amount);
  /// Every row of every table that a settlement touches.
  std::vector<std::string> stored();
  /// Saves the notes as a settlement of agent 5, through the screen, and returns its number.
  int settle(const std::vector<int>& notes);
};

}  // namespace korvantes::settlement
