#include "tests/report/search_screen.h"

namespace korvantes::report {

void SearchScreen::type(int index, std::string_view text) const {
  typeInto("Text1(" + std::to_string(index) + ")", text);
}

void SearchScreen::choose(Forma forma, bool bPorFecha) const {
  const auto tick = [this](const char* identity, bool wanted) {
    if ((control<screen::CheckBox>(identity).Value() != 0) != wanted) click(identity);
  };
  tick("Check1(0)", true);
  tick("Check1(1)", forma == Forma::Albaran);
  tick("Check1(0)", forma != Forma::Resumen);
  click(bPorFecha ? "Option1(0)" : "Option1(1)");
}

std::vector<std::string> SearchScreen::rows() const {
  const auto& grid = control<screen::DataGrid>("dbgLiqui");
  std::vector<std::string> lines;
  for (std::size_t row = 0; row < grid.RowCount(); ++row) {
    std::string line;
    for (std::size_t column = 0; column < grid.ColumnCount(); ++column) {
      if (!grid.Columns(column).Visible) continue;
      line += (line.empty() ? "" : " | ") + grid.cellText(row, column, desktop.regional());
    }
    lines.push_back(line);
  }
  return lines;
}

void show(settlement::World& world, const std::function<void(SearchScreen&)>& user) {
  frmLiquidAgentes form;
  world.play(form, [&] {
    SearchScreen screen{{world.desktop, form}};
    user(screen);
  });
}

}  // namespace korvantes::report
