// The search of settlements on the small database of the settlement tests, with a test as its user.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "report/frmLiquidAgentes.h"
#include "tests/settlement/settlement_world.h"

namespace korvantes::report {

/// The open screen, as its user handles it.
struct SearchScreen : support::OpenScreen<frmLiquidAgentes> {
  void type(int index, std::string_view text) const;
  /// Ticks or unticks the boxes of the shape and takes the order, as far as they are enabled.
  void choose(Forma forma, bool bPorFecha = true) const;
  void search() const { click("cmdBuscar"); }
  /// The cells shown, row after row, joined with " | ".
  std::vector<std::string> rows() const;
  bool canPrint() const { return control<screen::PictureButton>("cmdEmision").Enabled(); }
  bool canExport() const { return control<screen::PictureButton>("cmdExcel").Enabled(); }
};

/// Opens the screen, lets the user play, closes it.
void show(settlement::World& world, const std::function<void(SearchScreen&)>& user);

}  // namespace korvantes::report
