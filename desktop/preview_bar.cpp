#include "desktop/preview_bar.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPrintPreviewWidget>
#include <QPushButton>
#include <QSignalBlocker>
#include <QSpinBox>
#include <QToolButton>
#include <array>

#include "desktop/icons.h"
#include "desktop/owned_child.h"

namespace korvantes::desktop {

namespace {

constexpr int kIcon = 18;
constexpr int kWideGap = 16;
constexpr int kButtonMargin = 12;
/// Entries of the zoom list: two that fit the window, then percentages.
constexpr int kPageWidth = 0;
constexpr int kWholePage = 1;
constexpr std::array kPercentages{50, 75, 100, 125, 150, 200, 300, 400};
constexpr int kFirstPercentage = 2;

void fit(QPushButton& button) {
  button.setIconSize({kIcon, kIcon});
  button.setMinimumWidth(button.sizeHint().width() + kButtonMargin);
}

}  // namespace

PreviewBar::PreviewBar(QPrintPreviewWidget& pages, QWidget* parent)
    : QWidget(parent),
      pages_(pages),
      row_(makeChild<QHBoxLayout>(this)),
      zoom_(makeChild<QComboBox>(this)),
      page_(makeChild<QSpinBox>(this)),
      count_(makeChild<QLabel>(this)) {
  row_.setContentsMargins(0, 0, 0, 0);
  row_.setSpacing(6);
  row_.addStretch(1);
  addZoom();
  row_.addSpacing(kWideGap);
  addTurning();
  row_.addStretch(1);
}

void PreviewBar::addLeft(QPushButton& button) {
  fit(button);
  row_.insertWidget(leftButtons_++, &button);
}

void PreviewBar::addRight(QPushButton& button) {
  fit(button);
  row_.addWidget(&button);
}

QToolButton& PreviewBar::addTool(const char* icon, const char* tip, const QKeySequence& keys) {
  auto& tool = makeChild<QToolButton>(this);
  tool.setIcon(iconNamed(icon));
  tool.setIconSize({kIcon, kIcon});
  tool.setAutoRaise(true);
  tool.setFocusPolicy(Qt::NoFocus);
  tool.setToolTip(QString::fromUtf8(tip) + " (" + keys.toString(QKeySequence::PortableText) + ")");
  tool.setAccessibleName(QString::fromUtf8(tip));
  tool.setShortcut(keys);
  row_.addWidget(&tool);
  return tool;
}

void PreviewBar::addZoom() {
  auto& label = makeChild<QLabel>("&Zoom:", this);
  label.setBuddy(&zoom_);
  zoom_.addItems({"Ancho de página", "Página entera"});
  for (const int percentage : kPercentages) zoom_.addItem(QString::number(percentage) + " %");
  row_.addWidget(&label);
  row_.addWidget(&zoom_);
  connect(&zoom_, &QComboBox::currentIndexChanged, this, &PreviewBar::zoomTo);
  connect(&addTool("alejar", "Alejar", QKeySequence("Ctrl+-")), &QToolButton::clicked, this,
          [this] { zoomBy(-1); });
  connect(&addTool("acercar", "Acercar", QKeySequence("Ctrl++")), &QToolButton::clicked, this,
          [this] { zoomBy(1); });
}

void PreviewBar::addTurning() {
  previous_ = &addTool("anterior", "Página anterior", QKeySequence("Ctrl+PgUp"));
  auto& label = makeChild<QLabel>("Pág&ina", this);
  label.setBuddy(&page_);
  page_.setButtonSymbols(QAbstractSpinBox::NoButtons);
  page_.setAlignment(Qt::AlignRight);
  page_.setKeyboardTracking(false);
  row_.addWidget(&label);
  row_.addWidget(&page_);
  row_.addWidget(&count_);
  next_ = &addTool("siguiente", "Página siguiente", QKeySequence("Ctrl+PgDown"));
  connect(&page_, &QSpinBox::valueChanged, this, &PreviewBar::goTo);
  connect(previous_, &QToolButton::clicked, this, [this] { goTo(pages_.currentPage() - 1); });
  connect(next_, &QToolButton::clicked, this, [this] { goTo(pages_.currentPage() + 1); });
}

void PreviewBar::zoomTo(int choice) {
  if (choice == kPageWidth)
    pages_.fitToWidth();
  else if (choice == kWholePage)
    pages_.fitInView();
  else
    pages_.setZoomFactor(kPercentages.at(static_cast<std::size_t>(choice - kFirstPercentage)) /
                         100.0);
}

/// Zooms to the next percentage in the list in that direction.
void PreviewBar::zoomBy(int direction) {
  const double now = pages_.zoomFactor() * 100;
  const int last = static_cast<int>(kPercentages.size()) - 1;
  for (int step = 0; step <= last; ++step) {
    const int place = direction > 0 ? step : last - step;
    const double difference = kPercentages.at(static_cast<std::size_t>(place)) - now;
    if (difference * direction < 1) continue;
    zoom_.setCurrentIndex(place + kFirstPercentage);
    return;
  }
}

void PreviewBar::goTo(int page) {
  pages_.setCurrentPage(page);
  showPlace();
}

void PreviewBar::showPlace() {
  const QSignalBlocker quiet(page_);
  const int count = pages_.pageCount();
  page_.setRange(1, std::max(count, 1));
  page_.setValue(pages_.currentPage());
  count_.setText("de " + QString::number(count));
  previous_->setEnabled(pages_.currentPage() > 1);
  next_->setEnabled(pages_.currentPage() < count);
}

}  // namespace korvantes::desktop
