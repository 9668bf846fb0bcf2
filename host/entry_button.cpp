#include "host/entry_button.h"

#include <QPainter>
#include <QStyleOptionButton>
#include <QStylePainter>

#include "desktop/icons.h"
#include "desktop/look.h"

namespace korvantes::host {
namespace {

constexpr int kIcon = 40;
constexpr int kMargin = 14;
constexpr int kHeight = kIcon + 2 * kMargin;
constexpr int kShareOfQuietText = 35;

QFont titleFont() {
  return desktop::fontOf({11, true});
}

QString withoutMark(const char* caption) {
  return QString::fromUtf8(caption).remove(u'&');
}

}  // namespace

EntryButton::EntryButton(const DesktopEntry& entry, QWidget* parent)
    : QPushButton(parent), entry_(entry) {
  setAccessibleName(withoutMark(entry.caption));
  setAccessibleDescription(QString::fromUtf8(entry.purpose));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

QSize EntryButton::sizeHint() const {
  const QString shortcut = QString::fromUtf8(entry_.shortcut);
  const int title = QFontMetrics(titleFont()).horizontalAdvance(withoutMark(entry_.caption)) +
                    fontMetrics().horizontalAdvance(shortcut);
  const int purpose = fontMetrics().horizontalAdvance(QString::fromUtf8(entry_.purpose));
  return {kIcon + 4 * kMargin + std::max(title, purpose), kHeight};
}

void EntryButton::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  painter.drawControl(QStyle::CE_PushButton, option);

  const QRect inside = rect().adjusted(kMargin, kMargin, -kMargin, -kMargin);
  const QRect icon(inside.left(), inside.top(), kIcon, kIcon);
  desktop::paintIcon(painter, QString::fromUtf8(entry_.icon), icon, isEnabled());

  const QRect text = inside.adjusted(kIcon + kMargin, 0, 0, 0);
  const QRect upper(text.left(), text.top(), text.width(), text.height() / 2);
  const QRect lower(text.left(), upper.bottom() + 1, text.width(), text.height() / 2);
  const QColor color =
      palette().color(isEnabled() ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText);
  const QColor quiet = desktop::mixed(color, palette().color(QPalette::Button),
                                      isEnabled() ? kShareOfQuietText / 100.0 : 0.0);
  painter.setPen(quiet);
  painter.drawText(upper, int{Qt::AlignRight} | Qt::AlignVCenter,
                   QString::fromUtf8(entry_.shortcut));
  painter.drawText(lower, int{Qt::AlignLeft} | Qt::AlignVCenter, QString::fromUtf8(entry_.purpose));
  painter.setPen(color);
  painter.setFont(titleFont());
  painter.drawText(upper, int{Qt::AlignLeft} | Qt::AlignVCenter, withoutMark(entry_.caption));
}

}  // namespace korvantes::host
