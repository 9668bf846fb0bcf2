#pragma once

#include <algorithm>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "office/sheet/spreadsheet.h"
#include "runtime/screen/form.h"
#include "scripts/headless_desktop.h"
#include "tests/support/failure.h"
#include "tests/support/program_output.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::office {

/// A form with a list and a grid, a spreadsheet object, and a folder that it writes to.
struct SheetWorld : SheetOutlet {
  SheetWorld() {
    screen::Desktop::makeCurrent(&desktop);
    desktop.regional(screen::Regional::named("es-ES"));
    using screen::Alignment;
    list.ColumnHeaders = {
        {"Factura", 1440, Alignment::Left},      {"Fecha", 1440, Alignment::Left},
        {"Cliente", 4000, Alignment::Right},     {"Oculta", 0, Alignment::Left},
        {"Importe", 1701, Alignment::Right},     {"% Comision", 580, Alignment::Right},
        {"Imp.Comision", 1701, Alignment::Right}};
  }
  ~SheetWorld() override { screen::Desktop::makeCurrent(nullptr); }

  scripts::HeadlessDesktop desktop;
  screen::Form form{"frmPrueba"};
  screen::ListView list{form, "ListView1"};
  screen::DataGrid grid{form, "dbgLiqui"};
  support::TemporaryFolder folder;
  Spreadsheet sheets{std::shared_ptr<SheetOutlet>(std::shared_ptr<void>(), this)};  // not owned
  /// Where the next file goes; empty if the user cancels.
  std::optional<std::filesystem::path> target = folder.file("hoja.xlsx");
  std::string suggested;                   ///< name that the object asked for last
  std::optional<std::size_t> rowsWritten;  ///< rows it reported last

  std::optional<std::filesystem::path> fileFor(const std::string& suggestedName) override {
    suggested = suggestedName;
    return target;
  }
  void written(const std::filesystem::path& file, std::size_t rows) override {
    if (file == target) rowsWritten = rows;
  }

  void addRow(std::vector<std::string> cells, bool ticked = false) {
    screen::ListView::ListItem& item = list.Add(cells.front());
    item.SubItems.assign(cells.begin() + 1, cells.end());
    item.Checked = ticked;
  }
  void exportList() { sheets.call("ListToExcel", {&list}); }
  void exportGrid(const ado::Recordset& rows) { sheets.call("gridtoexcel", {rows, &grid}); }

  /// What read_sheet.py prints of the target.
  std::string read(const std::string& option = {}) const {
    return support::outputOf(std::string(READ_SHEET) + " '" + target.value().string() + "' " +
                             option);
  }
  std::vector<std::string> filesInFolder() const {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder.file("")))
      names.push_back(entry.path().filename());
    std::sort(names.begin(), names.end());
    return names;
  }
};

}  // namespace korvantes::office
