#pragma once

#include <QAbstractTableModel>

#include "runtime/screen/list_view.h"

namespace korvantes::desktop {

/// The rows of a list, read from the control as they are painted. Qt only knows the state at the
/// last readAgain.
class ListModel : public QAbstractTableModel {
 public:
  explicit ListModel(const screen::ListView& list);

  /// The rows of the control changed: more, fewer, ticked, sorted.
  void readAgain();

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  const screen::ListView& list_;
  int rows_ = 0;
};

}  // namespace korvantes::desktop
