#include "desktop/grid_model.h"

#include "desktop/look.h"
#include "runtime/screen/conversions.h"

namespace korvantes::desktop {

GridModel::GridModel(const screen::DataGrid& grid)
    : grid_(grid),
      rows_(static_cast<int>(grid.RowCount())),
      columns_(static_cast<int>(grid.ColumnCount())) {}

void GridModel::readAgain() {
  const int rows = static_cast<int>(grid_.RowCount());
  const int columns = static_cast<int>(grid_.ColumnCount());
  if (rows == rows_ && columns == columns_) {
    if (rows_ == 0 || columns_ == 0) return;
    emit dataChanged(index(0, 0), index(rows_ - 1, columns_ - 1));
    emit headerDataChanged(Qt::Horizontal, 0, columns_ - 1);
    return;
  }
  beginResetModel();
  rows_ = rows;
  columns_ = columns;
  endResetModel();
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  const auto column = static_cast<std::size_t>(index.column());
  // A recordset replaced in the current event may be smaller than the toolkit knows.
  if (!index.isValid() || row >= grid_.RowCount() || column >= grid_.ColumnCount()) return {};
  if (role == Qt::DisplayRole) return toQt(grid_.cellText(row, column, screen::currentRegional()));
  if (role == Qt::TextAlignmentRole)
    return QVariant::fromValue(alignmentOf(grid_.Columns(column).TextAlignment) | Qt::AlignVCenter);
  return {};
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto column = static_cast<std::size_t>(section);
  if (orientation != Qt::Horizontal || column >= grid_.ColumnCount()) return {};
  if (role == Qt::DisplayRole) return toQt(grid_.Columns(column).Caption);
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(alignmentOf(grid_.Columns(column).TextAlignment));
  return {};
}

Qt::ItemFlags GridModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  return Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
}

}  // namespace korvantes::desktop
