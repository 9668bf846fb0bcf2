#include "runtime/screen/data_grid.h"

#include "runtime/screen/conversions.h"
#include "runtime/screen/form.h"

namespace korvantes::screen {

DataGrid::DataGrid(Form& form, std::string name, std::optional<int> index)
    : Control(form, Kind::DataGrid, std::move(name), index) {}

void DataGrid::DataSource(ado::Recordset source) {
  source_ = std::move(source);
  columns_.clear();
  if (source_.isOpen()) {
    for (const ado::FieldDefinition& field : source_.definitions()) {
      Column column;
      column.Caption = field.name;
      columns_.push_back(std::move(column));
    }
  }
  columnsChanged();
}

void DataGrid::columnsChanged() {
  noticedRow_ = currentRow();
  noticedCount_ = RowCount();
  if (FormObserver* face = form().observer()) face->rowsChanged(*this);
}

std::size_t DataGrid::RowCount() const {
  return source_.isOpen() ? source_.RecordCount() : 0;
}

std::optional<std::size_t> DataGrid::currentRow() const {
  return source_.isOpen() ? source_.position() : std::nullopt;
}

std::string DataGrid::cellText(std::size_t row, std::size_t column,
                               const Regional& regional) const {
  const ado::Variant& value = source_.cell(row, column);
  if (value.kind() == ado::Variant::Kind::Bytes) return {};
  const std::string& mask = columns_.at(column).NumberFormat;
  return mask.empty() ? CStr(value, regional) : Format(value, mask, regional);
}

void DataGrid::noticeMove() {
  if (noticedRow_ != currentRow() || noticedCount_ != RowCount()) columnsChanged();
}

}  // namespace korvantes::screen
