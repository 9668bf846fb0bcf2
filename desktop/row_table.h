#pragma once

#include <QTableView>
#include <functional>
#include <optional>

namespace korvantes::desktop {

/// A table of rows for lists and grids: one current row, rows of one height, headings that always
/// show their captions. The table has no logic: clicks go to the functions below, keys to the form,
/// and the current row is set from outside.
class RowTable : public QTableView {
 public:
  explicit RowTable(QWidget& parent);

  /// The left button was pressed on a cell.
  std::function<void(const QModelIndex& cell, const QPoint& place)> onPress;
  std::function<void(const QModelIndex& cell, const QPoint& place)> onDoubleClick;
  /// The left button was pressed outside all rows.
  std::function<void()> onPressOutside;
  std::function<void(int column)> onHeading;

  /// Marks the row and brings it into view.
  void showCurrentRow(std::optional<int> row);
  /// Fits the height of the headings to their captions. Call it after changing columns.
  void fitHeadings();
  void colors(const QColor& back, const QColor& text);
  void type(const QFont& font);
  /// Width that shows the caption of a column in its usual font.
  int headingWidth(int column) const;
  /// The area of the check mark in a cell.
  QRect checkMark(const QModelIndex& cell) const;
  /// Width at the right end of a cell that its text leaves free.
  virtual int reserved(const QModelIndex&) const { return 0; }

 protected:
  bool viewportEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
};

}  // namespace korvantes::desktop
