#include "desktop/row_table.h"

#include <QHeaderView>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QToolTip>

#include "desktop/look.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

constexpr int kRowHeight = 20;
constexpr int kHeadingHeight = 22;
constexpr int kHeadingMargin = 3;
constexpr int kSortMark = 10;
constexpr int kCellMargin = 3;

/// True for digits and separators: an amount, a rate, a date, a code. Cut short, it would read as a
/// different one.
bool isNumber(const QString& text) {
  static const QString kBetween = " .,-/%€";
  bool digits = false;
  for (const QChar letter : text) {
    if (!letter.isDigit() && !kBetween.contains(letter)) return false;
    digits |= letter.isDigit();
  }
  return digits;
}

class RowDelegate : public QStyledItemDelegate {
 public:
  explicit RowDelegate(RowTable& table) : QStyledItemDelegate(&table), table_(table) {}

  void paint(QPainter* painter, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override {
    QStyleOptionViewItem place = option;
    place.rect.setWidth(option.rect.width() - table_.reserved(index));
    QStyledItemDelegate::paint(painter, place, index);
  }

 protected:
  /// The current row is highlighted more faintly while the focus is elsewhere; single cells get no
  /// frame.
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
    QStyledItemDelegate::initStyleOption(option, index);
    option->state.setFlag(QStyle::State_HasFocus, false);
    option->state.setFlag(QStyle::State_Active, true);
    option->textElideMode = Qt::ElideRight;
    const int room = option->rect.width() - 2 * kCellMargin;
    if (isNumber(option->text))
      option->font = fontForWhole(option->text, option->font, room);
    else if (table_.reserved(index) > 0)
      option->font = fit(option->text, option->font, room).font;
    if (option->widget != nullptr && !option->widget->hasFocus()) {
      option->palette.setColor(QPalette::Highlight, QColor(0xD4, 0xE0, 0xEC));
      option->palette.setColor(QPalette::HighlightedText, QColor(0x14, 0x14, 0x14));
    }
  }
  /// Tooltip: the whole text of a cell that shows it cut.
  bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
                 const QModelIndex& index) override {
    const QString text = index.data().toString();
    const int width = QFontMetrics(option.font).horizontalAdvance(text);
    if (width + 8 > option.rect.width())
      QToolTip::showText(event->globalPos(), text, view);
    else
      QToolTip::hideText();
    return true;
  }

 private:
  const RowTable& table_;
};

class CaptionHeader : public QHeaderView {
 public:
  explicit CaptionHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

  FittedText shown(int section) const {
    const bool sorted = isSortIndicatorShown() && sortIndicatorSection() == section;
    const int width = sectionSize(section) - 2 * kHeadingMargin - (sorted ? kSortMark : 0);
    return fitTwoLines(caption(section), font(), width);
  }

 protected:
  void paintSection(QPainter* painter, const QRect& rect, int section) const override {
    QStyleOptionHeader option;
    initStyleOption(&option);
    option.rect = rect;
    option.section = section;
    option.text.clear();
    option.icon = QIcon();
    option.sortIndicator = QStyleOptionHeader::None;
    if (isEnabled()) option.state |= QStyle::State_Enabled;
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);

    const FittedText text = shown(section);
    QRect place = rect.adjusted(kHeadingMargin, 0, -kHeadingMargin, 0);
    if (isSortIndicatorShown() && sortIndicatorSection() == section) {
      paintSortMark(*painter, QRect(place.right() - kSortMark + 3, rect.top(), 7, rect.height()));
      place.setRight(place.right() - kSortMark);
    }
    painter->setFont(text.font);
    painter->setPen(palette().color(QPalette::ButtonText));
    const auto alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole);
    painter->drawText(place, alignment.toInt() | Qt::AlignVCenter | Qt::TextDontClip, text.text);
  }

  bool viewportEvent(QEvent* event) override {
    if (event->type() != QEvent::ToolTip) return QHeaderView::viewportEvent(event);
    const auto& help = static_cast<QHelpEvent&>(*event);
    const int section = logicalIndexAt(help.pos());
    const bool cut = section >= 0 && shown(section).cut;
    QToolTip::showText(help.globalPos(), cut ? caption(section) : QString(), this);
    return true;
  }

 private:
  QString caption(int section) const {
    return model()->headerData(section, orientation(), Qt::DisplayRole).toString();
  }
  void paintSortMark(QPainter& painter, const QRect& place) const {
    const double middle = place.top() + place.height() / 2.0;
    const double point = sortIndicatorOrder() == Qt::AscendingOrder ? -2 : 2;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(palette().color(QPalette::ButtonText));
    painter.drawPolygon(QPolygonF{{double(place.left()), middle - point},
                                  {place.left() + 7.0, middle - point},
                                  {place.left() + 3.5, middle + point}});
    painter.restore();
  }
};

}  // namespace

RowTable::RowTable(QWidget& parent) : QTableView(&parent) {
  setFocusPolicy(Qt::NoFocus);
  setEditTriggers(NoEditTriggers);
  setSelectionBehavior(SelectRows);
  setSelectionMode(SingleSelection);
  setTabKeyNavigation(false);
  setCornerButtonEnabled(false);
  setWordWrap(false);
  setAlternatingRowColors(true);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollMode(ScrollPerPixel);
  setItemDelegate(&makeChild<RowDelegate>(*this));
  auto& header = makeChild<CaptionHeader>(this);
  setHorizontalHeader(&header);
  header.setPalette(quietPalette());  // not the colours of the form
  header.setHighlightSections(false);
  header.setMinimumSectionSize(16);
  header.setSectionsClickable(true);
  header.setFocusPolicy(Qt::NoFocus);
  verticalHeader()->hide();
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->setMinimumSectionSize(kRowHeight);
  verticalHeader()->setDefaultSectionSize(kRowHeight);
  connect(&header, &QHeaderView::sectionClicked, this, [this](int column) {
    if (onHeading) onHeading(column);
  });
  connect(&header, &QHeaderView::sectionResized, this, [this] { fitHeadings(); });
}

void RowTable::showCurrentRow(std::optional<int> row) {
  if (!row || *row < 0 || *row >= model()->rowCount()) {
    selectionModel()->clear();
    return;
  }
  const int column = std::max(0, columnAt(0));
  if (currentIndex().row() == *row && selectionModel()->isRowSelected(*row)) return;
  setCurrentIndex(model()->index(*row, column));
}

void RowTable::fitHeadings() {
  auto& header = static_cast<CaptionHeader&>(*horizontalHeader());
  bool twoLines = false;
  for (int section = 0; section < header.count(); ++section)
    twoLines |= !header.isSectionHidden(section) && header.shown(section).text.contains(u'\n');
  const int lines = QFontMetrics(header.font()).height() * (twoLines ? 2 : 1);
  header.setFixedHeight(std::max(kHeadingHeight, lines + 4));
}

void RowTable::colors(const QColor& back, const QColor& text) {
  QPalette colors = palette();
  colors.setColor(QPalette::Base, back);
  colors.setColor(QPalette::AlternateBase, mixed(back, QColor(0x8A, 0x7A, 0x40), 0.07));
  colors.setColor(QPalette::Text, text);
  setPalette(colors);
}

void RowTable::type(const QFont& font) {
  setFont(font);
  horizontalHeader()->setFont(font);
  fitHeadings();
}

int RowTable::headingWidth(int column) const {
  const QString caption = model()->headerData(column, Qt::Horizontal).toString();
  return horizontalHeader()->fontMetrics().horizontalAdvance(caption) + 2 * kHeadingMargin;
}

QRect RowTable::checkMark(const QModelIndex& cell) const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = visualRect(cell);
  option.features |= QStyleOptionViewItem::HasCheckIndicator;
  return style()->subElementRect(QStyle::SE_ItemViewItemCheckIndicator, &option, this);
}

bool RowTable::viewportEvent(QEvent* event) {
  const bool press = event->type() == QEvent::MouseButtonPress;
  const bool doubleClick = event->type() == QEvent::MouseButtonDblClick;
  if (press || doubleClick) {
    const auto& mouse = static_cast<QMouseEvent&>(*event);
    const QPoint place = mouse.position().toPoint();
    const QModelIndex cell = indexAt(place);
    if (mouse.button() != Qt::LeftButton) return true;
    if (!cell.isValid()) {
      if (onPressOutside) onPressOutside();
    } else if (doubleClick && onDoubleClick) {
      onDoubleClick(cell, place);
    } else if (onPress) {
      onPress(cell, place);
    }
    return true;
  }
  // Dragging neither selects nor scrolls.
  if (event->type() == QEvent::MouseButtonRelease || event->type() == QEvent::MouseMove)
    return true;
  return QTableView::viewportEvent(event);
}

/// The focus is visible even if there are no rows.
void RowTable::paintEvent(QPaintEvent* event) {
  QTableView::paintEvent(event);
  if (!hasFocus()) return;
  QPainter painter(viewport());
  painter.setPen(palette().color(QPalette::Highlight));
  painter.drawRect(viewport()->rect().adjusted(0, 0, -1, -1));
}

void RowTable::keyPressEvent(QKeyEvent* event) {
  event->ignore();
}

}  // namespace korvantes::desktop
