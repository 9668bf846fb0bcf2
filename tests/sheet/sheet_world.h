#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "office/sheet/folder_sheet_outlet.h"
#include "office/sheet/spreadsheet.h"
#include "outside/screen/form.h"
#include "outside/screen/headless_desktop.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::office {

/// A form with a list and a grid, a spreadsheet object, and a folder that it writes to.
class SheetWorld : public SheetOutlet {
 public:
  SheetWorld();
  ~SheetWorld() override;

  screen::Form form{"frmPrueba"};
  screen::ListView list{form, "ListView1"};
  screen::DataGrid grid{form, "dbgLiqui"};
  support::TemporaryFolder folder;
  Spreadsheet sheets;
  /// Where the next file goes; nothing: the user thinks better of it.
  std::optional<std::filesystem::path> target;
  std::string suggested;                   ///< name that the object asked for last
  std::optional<std::size_t> rowsWritten;  ///< rows it told of last

  void addRow(std::vector<std::string> cells, bool ticked = false);
  void exportList() { sheets.call("ListToExcel", {&list}); }
  void exportGrid(const ado::Recordset& rows) { sheets.call("gridtoexcel", {rows, &grid}); }
  /// Words of the ado::Error that exporting the list ends with; "" for none.
  std::string failureOfList();
  /// What read_sheet.py prints of the target.
  std::string read(const std::string& option = {}) const;
  std::vector<std::string> filesInFolder() const;

  std::optional<std::filesystem::path> fileFor(const std::string& suggestedName) override;
  void written(const std::filesystem::path& file, std::size_t rows) override;

 private:
  screen::HeadlessDesktop desktop_;
};

}  // namespace korvantes::office
