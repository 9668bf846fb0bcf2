#pragma once

#include <QAbstractTableModel>

#include "runtime/screen/data_grid.h"

namespace korvantes::desktop {

/// The rows of a grid's recordset, read when they are painted. Qt only knows the state at the
/// last readAgain.
class GridModel : public QAbstractTableModel {
 public:
  explicit GridModel(const screen::DataGrid& grid);

  /// The recordset was replaced, or its rows or the columns changed.
  void readAgain();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const screen::DataGrid& grid_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace korvantes::desktop
