// The search of settlements on the small database of the settlement tests, with a test as its user.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "report/frmLiquidAgentes.h"
#include "tests/settlement/settlement_world.h"

namespace korvantes::report {

/// Every shape, by date and by name.
struct Shape {
  Forma forma;
  bool byDate;
};
inline constexpr Shape kShapes[] = {{Forma::Resumen, true},
                                    {Forma::Factura, true},
                                    {Forma::Factura, false},
                                    {Forma::Albaran, true},
                                    {Forma::Albaran, false}};

/// The open screen, as its user handles it.
struct SearchScreen : support::OpenScreen<frmLiquidAgentes> {
  /// Types the filters; dates as digits.
  void filter(std::string_view agent, std::string_view from, std::string_view to) const {
    typeInto("Text1(0)", agent);
    typeInto("Text1(2)", from);
    typeInto("Text1(3)", to);
  }
  /// Ticks or unticks the boxes of the shape and takes the order, as far as they are enabled.
  void choose(const Shape& shape) const {
    const auto tick = [this](const char* identity, bool wanted) {
      if ((control<screen::CheckBox>(identity).Value() != 0) != wanted) click(identity);
    };
    tick("Check1(0)", true);
    tick("Check1(1)", shape.forma == Forma::Albaran);
    tick("Check1(0)", shape.forma != Forma::Resumen);
    click(shape.byDate ? "Option1(0)" : "Option1(1)");
  }
  void search() const { click("cmdBuscar"); }
  screen::DataGrid& grid() const { return control<screen::DataGrid>("dbgLiqui"); }
  bool canPrint() const { return control<screen::PictureButton>("cmdEmision").Enabled(); }
  bool canExport() const { return control<screen::PictureButton>("cmdExcel").Enabled(); }
};

/// Opens the screen, lets the user play, closes it.
inline void show(settlement::World& world, const std::function<void(SearchScreen&)>& user) {
  frmLiquidAgentes form;
  world.play(form, [&] {
    SearchScreen screen{{world.desktop, form}};
    user(screen);
  });
}

}  // namespace korvantes::report
