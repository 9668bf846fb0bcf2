#include <QHeaderView>

#include "desktop/control_face.h"
#include "desktop/list_model.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"
#include "desktop/row_table.h"

namespace korvantes::desktop {

namespace {

class ListFace : public ControlFace {
 public:
  ListFace(screen::ListView& list, FaceWindow& window, QWidget& parent)
      : ControlFace(list, window), list_(list), model_(list), table_(makeChild<RowTable>(parent)) {
    table_.setModel(&model_);
    table_.setShowGrid(false);
    for (std::size_t i = 0; i < list.ColumnHeaders.size(); ++i) {
      const int column = static_cast<int>(i);
      const int width = pixels(list.ColumnHeaders[i].Width);
      table_.setColumnHidden(column, width == 0);
      if (width > 0) table_.setColumnWidth(column, width);
    }
    table_.onPress = [this](const QModelIndex& cell, const QPoint& place) { press(cell, place); };
    table_.onDoubleClick = [this](const QModelIndex& cell, const QPoint& place) {
      if (cell.column() == 0 && !onMark(cell, place))
        report([row = rowOf(cell), this](screen::UserInput& user) { user.editLabel(list_, row); });
      else
        press(cell, place);
    };
    table_.onPressOutside = [this] {
      report([this](screen::UserInput& user) { user.moveFocus(list_); });
    };
    table_.onHeading = [this](int column) {
      report([column, this](screen::UserInput& user) { user.clickColumn(list_, column + 1); });
    };
  }

  QWidget& widget() const override { return table_; }

  void showRows() override {
    model_.readAgain();
    showCursor();
  }

 protected:
  void showControl() override {
    table_.type(fontOf(list_.TextFont()));
    table_.colors(colorOf(list_.BackColor()), colorOf(list_.ForeColor()));
    QHeaderView& header = *table_.horizontalHeader();
    header.setSortIndicatorShown(list_.Sorted());
    if (list_.Sorted())
      header.setSortIndicator(list_.SortKey(),
                              list_.SortOrder() == 0 ? Qt::AscendingOrder : Qt::DescendingOrder);
    table_.fitHeadings();
    showCursor();
  }

 private:
  static std::size_t rowOf(const QModelIndex& cell) { return static_cast<std::size_t>(cell.row()); }

  void report(const FaceWindow::Action& action) { window().report(action); }

  bool onMark(const QModelIndex& cell, const QPoint& place) const {
    return cell.column() == 0 && table_.checkMark(cell).adjusted(-2, -2, 2, 2).contains(place);
  }

  void press(const QModelIndex& cell, const QPoint& place) {
    const std::size_t row = rowOf(cell);
    if (onMark(cell, place)) {
      report([&](screen::UserInput& user) {
        if (row < list_.Count()) user.tick(list_, row, !list_.item(row).Checked);
      });
      return;
    }
    report([&](screen::UserInput& user) {
      if (user.moveFocus(list_) && row < list_.Count()) list_.SelectedRow = static_cast<int>(row);
    });
  }

  void showCursor() {
    table_.showCurrentRow(list_.SelectedRow() < 0 ? std::nullopt
                                                  : std::optional<int>(list_.SelectedRow()));
  }

  screen::ListView& list_;
  ListModel model_;
  RowTable& table_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::ListView& list, FaceWindow& window, QWidget& parent) {
  return std::make_unique<ListFace>(list, window, parent);
}

}  // namespace korvantes::desktop
