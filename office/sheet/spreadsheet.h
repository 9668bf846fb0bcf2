// office/sheet: the spreadsheet object. It writes a list or the rows of a grid to an .xlsx file;
// the outlet says where.
#pragma once

#include <memory>
#include <string>

#include "office/outlets.h"
#include "outside/office/objects.h"

namespace korvantes::office {

class SheetTable;

/// The object "BELTRIS.bSheets". Its members, regardless of case:
///
/// - property `sTitulo`: the title above the table, and the suggested file name;
/// - `ListToExcel(ListView)`: all rows of the list, in the order on the screen, ticks as a column;
/// - `GridToExcel(recordset, DataGrid)`: all rows of the recordset under the visible columns of the
///   grid. The recordset's current row stays as it is.
///
/// Both return once the file is complete under its name, or at once if the outlet returns no file.
/// Every failure is an ado::Error with a Spanish sentence and leaves an existing file unchanged.
class Spreadsheet : public Object {
 public:
  explicit Spreadsheet(std::shared_ptr<SheetOutlet> outlet) : outlet_(std::move(outlet)) {}

  void set(std::string_view property, const Argument& value) override;
  ado::Variant call(std::string_view method, const std::vector<Argument>& arguments) override;

 private:
  void listToExcel(const Argument& list) const;
  void gridToExcel(const Argument& rows, const Argument& grid) const;
  void deliver(const SheetTable& table, const std::string& title) const;

  std::shared_ptr<SheetOutlet> outlet_;
  std::string title_;
};

}  // namespace korvantes::office
