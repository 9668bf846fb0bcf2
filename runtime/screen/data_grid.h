#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "runtime/ado/recordset.h"
#include "runtime/screen/control.h"

namespace korvantes::screen {

struct Regional;

/// A grid bound to a recordset: its rows are the recordset's rows, its current row is the
/// recordset's current row. It is read-only.
class DataGrid : public Control {
 public:
  explicit DataGrid(Form& form, std::string name, std::optional<int> index = std::nullopt);

  struct Column {
    std::string Caption;
    int Width = 1440;  ///< twips
    Alignment TextAlignment = Alignment::Left;
    std::string NumberFormat;  ///< mask of Format; empty: the value's plain text
    bool Button = false;       ///< the current cell has a button
    bool Visible = true;
  };

  /// Binds a recordset: one column per field, in field order, with the field's name as caption and
  /// default properties, discarding any earlier set-up. A default-constructed recordset unbinds.
  void DataSource(ado::Recordset source);
  const ado::Recordset& DataSource() const { return source_; }

  std::size_t ColumnCount() const { return columns_.size(); }
  /// By position from 0. Throws std::out_of_range. Call columnsChanged after a set-up.
  Column& Columns(std::size_t position) { return columns_.at(position); }
  const Column& Columns(std::size_t position) const { return columns_.at(position); }
  void columnsChanged();

  std::size_t RowCount() const;
  /// Row by position from 0; empty without a current row.
  std::optional<std::size_t> currentRow() const;
  /// Text of a cell: the value under the column's format; Null is an empty text.
  std::string cellText(std::size_t row, std::size_t column, const Regional& regional) const;

  /// The user pressed the button of a cell of the current row; columns count from 0.
  std::function<void(int columnIndex)> ButtonClick;

 private:
  friend class UserInput;
  /// Notifies the face if the recordset's current row has changed since the last notification.
  void noticeMove();

  ado::Recordset source_;
  std::optional<std::size_t> noticedRow_;
  std::size_t noticedCount_ = 0;
  std::vector<Column> columns_;
};

}  // namespace korvantes::screen
