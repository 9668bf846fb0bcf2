#include "desktop/list_model.h"

#include "desktop/look.h"

namespace korvantes::desktop {

ListModel::ListModel(const screen::ListView& list)
    : list_(list), rows_(static_cast<int>(list.Count())) {}

void ListModel::readAgain() {
  const int rows = static_cast<int>(list_.Count());
  if (rows < rows_) {
    beginResetModel();
    rows_ = rows;
    endResetModel();
    return;
  }
  if (rows > rows_) {
    beginInsertRows({}, rows_, rows - 1);
    rows_ = rows;
    endInsertRows();
  }
  if (rows_ > 0) emit dataChanged(index(0, 0), index(rows_ - 1, columnCount() - 1));
}

int ListModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : rows_;
}

int ListModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(list_.ColumnHeaders.size());
}

QVariant ListModel::data(const QModelIndex& index, int role) const {
  const auto row = static_cast<std::size_t>(index.row());
  const auto column = static_cast<std::size_t>(index.column());
  // A list emptied in the running event has fewer rows than Qt knows.
  if (!index.isValid() || row >= list_.Count() || column >= list_.ColumnHeaders.size()) return {};
  switch (role) {
    case Qt::DisplayRole:
      return toQt(list_.item(row).cell(column));
    case Qt::CheckStateRole:
      if (column == 0) return list_.item(row).Checked ? Qt::Checked : Qt::Unchecked;
      return {};
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(alignmentOf(list_.ColumnHeaders[column].TextAlignment) |
                                 Qt::AlignVCenter);
    default:
      return {};
  }
}

QVariant ListModel::headerData(int section, Qt::Orientation orientation, int role) const {
  const auto column = static_cast<std::size_t>(section);
  if (orientation != Qt::Horizontal || column >= list_.ColumnHeaders.size()) return {};
  if (role == Qt::DisplayRole) return toQt(list_.ColumnHeaders[column].Text);
  if (role == Qt::TextAlignmentRole)
    return static_cast<int>(alignmentOf(list_.ColumnHeaders[column].TextAlignment));
  return {};
}

Qt::ItemFlags ListModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags row = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemNeverHasChildren;
  return index.column() == 0 ? row | Qt::ItemIsUserCheckable : row;
}

}  // namespace korvantes::desktop
