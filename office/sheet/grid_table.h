#pragma once

#include "office/sheet/sheet_table.h"
#include "runtime/ado/recordset.h"
#include "runtime/screen/data_grid.h"

namespace korvantes::office {

/// The rows of a recordset under the visible columns of a grid, in the grid's formats. If the
/// numbers of columns and fields differ, the grid is bound to something else, and the fields become
/// the columns. A field of a table ("Fav_Bruto") has no total where the fields include the key of
/// another table ("Lca_Id"): its amount may be in several rows.
class GridTable : public SheetTable {
 public:
  /// Throws ado::Error when the recordset is closed or no column is visible.
  GridTable(const ado::Recordset& rows, const screen::DataGrid& grid);

  std::size_t rows() const override { return rows_.RecordCount(); }
  ado::Variant cell(std::size_t row, std::size_t column) const override {
    return rows_.cell(row, fields_[column]);
  }

 private:
  ado::Recordset rows_;              ///< a cursor of its own
  std::vector<std::size_t> fields_;  ///< field of the recordset, for each column of the sheet
};

}  // namespace korvantes::office
