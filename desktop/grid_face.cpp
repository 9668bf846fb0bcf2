#include <QHeaderView>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>
#include <utility>
#include <vector>

#include "desktop/cell_button.h"
#include "desktop/control_face.h"
#include "desktop/grid_model.h"
#include "desktop/look.h"
#include "desktop/owned_child.h"
#include "desktop/row_table.h"

namespace korvantes::desktop {

namespace {

class GridTable : public RowTable {
 public:
  GridTable(const screen::DataGrid& grid, QWidget& parent) : RowTable(parent), grid_(grid) {
    horizontalHeader()->setSectionsClickable(false);
  }

  bool hasButton(const QModelIndex& cell) const {
    const auto column = static_cast<std::size_t>(cell.column());
    const auto current = grid_.currentRow();
    return current && cell.row() == static_cast<int>(*current) && column < grid_.ColumnCount() &&
           grid_.Columns(column).Button;
  }
  int reserved(const QModelIndex& cell) const override {
    return hasButton(cell) ? cellButton(visualRect(cell)).width() : 0;
  }

 protected:
  /// The cells, and over them the buttons of the current row.
  void paintEvent(QPaintEvent* event) override {
    RowTable::paintEvent(event);
    const auto current = grid_.currentRow();
    if (!current) return;
    QPainter painter(viewport());
    for (int column = 0; column < model()->columnCount(); ++column) {
      const QModelIndex cell = model()->index(static_cast<int>(*current), column);
      if (!cell.isValid() || isColumnHidden(column) || !hasButton(cell)) continue;
      QStyleOptionButton option;
      option.initFrom(this);
      option.state |= QStyle::State_Raised;
      option.rect = cellButton(visualRect(cell));
      option.text = "…";
      painter.fillRect(option.rect, palette().color(QPalette::Button));
      style()->drawControl(QStyle::CE_PushButton, &option, &painter, this);
    }
  }

 private:
  const screen::DataGrid& grid_;
};

class GridFace : public ControlFace {
 public:
  GridFace(screen::DataGrid& grid, FaceWindow& window, QWidget& parent)
      : ControlFace(grid, window),
        grid_(grid),
        model_(grid),
        table_(makeChild<GridTable>(grid, parent)) {
    table_.setModel(&model_);
    table_.onPress = [this](const QModelIndex& cell, const QPoint& place) { press(cell, place); };
    table_.onPressOutside = [this] {
      this->window().report([this](screen::UserInput& user) { user.moveFocus(grid_); });
    };
    showRows();
  }

  QWidget& widget() const override { return table_; }

  void showRows() override {
    model_.readAgain();
    showColumns();
    const auto current = grid_.currentRow();
    table_.showCurrentRow(current ? std::optional<int>(static_cast<int>(*current)) : std::nullopt);
    table_.viewport()->update();
  }

 protected:
  void showControl() override {
    table_.type(fontOf(grid_.TextFont()));
    table_.colors(colorOf(grid_.BackColor()), colorOf(grid_.ForeColor()));
  }

 private:
  using Widths = std::vector<std::pair<int, bool>>;

  /// Applies the designed columns; widths set by the user are kept until the design changes.
  void showColumns() {
    Widths designed;
    for (std::size_t i = 0; i < grid_.ColumnCount(); ++i)
      designed.emplace_back(grid_.Columns(i).Width, grid_.Columns(i).Visible);
    if (designed == designed_) return;
    for (std::size_t i = 0; i < designed.size(); ++i) {
      const auto [width, visible] = designed[i];
      table_.setColumnHidden(static_cast<int>(i), !visible || width <= 0);
      if (visible && width > 0) table_.setColumnWidth(static_cast<int>(i), pixels(width));
    }
    designed_ = std::move(designed);
    table_.fitHeadings();
  }

  void press(const QModelIndex& cell, const QPoint& place) {
    const bool button =
        table_.hasButton(cell) && cellButton(table_.visualRect(cell)).contains(place);
    const int column = cell.column();
    const auto row = static_cast<std::size_t>(cell.row());
    window().report([&](screen::UserInput& user) {
      if (button)
        user.pressCellButton(grid_, column);
      else
        user.selectRow(grid_, row);
    });
  }

  screen::DataGrid& grid_;
  GridModel model_;
  GridTable& table_;
  Widths designed_;
};

}  // namespace

std::unique_ptr<ControlFace> makeFace(screen::DataGrid& grid, FaceWindow& window, QWidget& parent) {
  return std::make_unique<GridFace>(grid, window, parent);
}

}  // namespace korvantes::desktop
