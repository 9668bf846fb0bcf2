// The agents' screen on a small real database, with a test as its user.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "agents/frmAgentes.h"
#include "tests/support/screen_world.h"

namespace korvantes::agents {

/// The open screen, as its user handles it.
struct Screen : support::OpenScreen<frmAgentes> {
  screen::TextBox& field(int index) const;
  std::string text(const std::string& list) const { return control<screen::ComboBox>(list).Text(); }
  std::size_t rows() const { return control<screen::DataGrid>("dboOper").RowCount(); }

  void type(int index, std::string_view text) const { typeInto(field(index).identity(), text); }
  void typeRegime(std::string_view text) const;
  void row(std::size_t place) const;
  /// The contents of the fields and lists, how many agents are listed, and which is current.
  std::vector<std::string> contents() const;
};

/// Agents 3 (province 28, country 34, regime 2, 7,5 %), 5 (province 99, country 33, regime 1) and 8
/// (a name only). Provinces 01, 28 and 99; twelve countries, the tenth of them 034; regimes
/// 01 and 02. Questions are answered with Yes.
class World : public support::ScreenWorld {
 public:
  World();

  /// Opens the screen, lets the user act and closes it.
  void show(const std::function<void(Screen&)>& user);
  /// One line for each agent.
  std::vector<std::string> stored();
};

}  // namespace korvantes::agents
