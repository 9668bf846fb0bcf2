#include "desktop/look.h"

#include <QFontMetrics>
#include <QStringList>
#include <QWidget>
#include <array>
#include <cmath>

namespace korvantes::desktop {

namespace {

constexpr double kTwipsPerPixel = 15.0;
constexpr double kPixelsPerPoint = 96.0 / 72.0;
constexpr int kSmallestFont = 9;
constexpr int kNarrowestStretch = 88;

struct SystemColor {
  unsigned index;
  QRgb color;
};

constexpr std::array kSystemColors{
    SystemColor{0x00, 0xFFC8C8C8}, SystemColor{0x01, 0xFF3A6EA5}, SystemColor{0x05, 0xFFFFFFFF},
    SystemColor{0x06, 0xFF646464}, SystemColor{0x08, 0xFF000000}, SystemColor{0x0D, 0xFF2F5D8C},
    SystemColor{0x0E, 0xFFFFFFFF}, SystemColor{0x0F, 0xFFF0F0F0}, SystemColor{0x10, 0xFFA0A0A0},
    SystemColor{0x11, 0xFF6D6D6D}, SystemColor{0x12, 0xFF000000}, SystemColor{0x14, 0xFFFFFFFF},
    SystemColor{0x17, 0xFF000000}, SystemColor{0x18, 0xFFFFFFE1},
};

int widestLine(const QFontMetrics& metrics, const QString& text) {
  return metrics.size(Qt::TextShowMnemonic, text).width();
}

/// The font, made smaller and then narrower until the text fits; empty if it never does.
bool shrink(const QString& text, QFont& font, int width) {
  for (;;) {
    if (widestLine(QFontMetrics(font), text) <= width) return true;
    if (font.pixelSize() > kSmallestFont)
      font.setPixelSize(font.pixelSize() - 1);
    else if (font.stretch() != kNarrowestStretch)
      font.setStretch(kNarrowestStretch);
    else
      return false;
  }
}

/// The text in two lines, broken at the blank that leaves the longer line shortest.
QString inTwoLines(const QString& text, const QFontMetrics& metrics) {
  QString best = text;
  for (qsizetype blank = text.indexOf(u' '); blank >= 0; blank = text.indexOf(u' ', blank + 1)) {
    const QString broken = text.left(blank) + u'\n' + text.mid(blank + 1);
    if (widestLine(metrics, broken) < widestLine(metrics, best)) best = broken;
  }
  return best;
}

}  // namespace

int pixels(int twips) {
  return static_cast<int>(std::lround(twips / kTwipsPerPixel));
}

QRect rectOf(const screen::Control& control) {
  const int left = pixels(control.Left());
  const int top = pixels(control.Top());
  return {left, top, pixels(control.Left() + control.Width()) - left,
          pixels(control.Top() + control.Height()) - top};
}

QColor colorOf(screen::Color color) {
  if ((color & 0x80000000U) != 0) {
    for (const SystemColor& known : kSystemColors)
      if (known.index == (color & 0xFFU)) return QColor::fromRgb(known.color);
    return QColor(Qt::white);
  }
  return {static_cast<int>(color & 0xFFU), static_cast<int>(color >> 8U & 0xFFU),
          static_cast<int>(color >> 16U & 0xFFU)};
}

QFont fontOf(const screen::Font& font) {
  // Metrics like those of the designed font first; all four families have the Spanish letters.
  QFont made(QStringList{"Liberation Sans", "Arimo", "Arial", "DejaVu Sans"});
  made.setPixelSize(static_cast<int>(std::lround(font.size * kPixelsPerPoint)));
  made.setBold(font.bold);
  return made;
}

Qt::Alignment alignmentOf(screen::Alignment alignment) {
  switch (alignment) {
    case screen::Alignment::Right:
      return Qt::AlignRight;
    case screen::Alignment::Center:
      return Qt::AlignHCenter;
    case screen::Alignment::Left:
      break;
  }
  return Qt::AlignLeft;
}

QString toQt(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string fromQt(const QString& text) {
  return text.toUtf8().toStdString();
}

FittedText fit(const QString& text, const QFont& font, int width) {
  QFont smaller = font;
  if (shrink(text, smaller, width)) return {smaller, text, false};
  QStringList lines = text.split(u'\n');
  const QFontMetrics metrics(smaller);
  for (QString& line : lines)
    line = metrics.elidedText(line, Qt::ElideRight, width, Qt::TextShowMnemonic);
  return {smaller, lines.join(u'\n'), true};
}

QFont fontForWhole(const QString& text, const QFont& font, int width) {
  QFont smaller = font;
  if (shrink(text, smaller, width)) return smaller;
  while (smaller.pixelSize() > 1 && widestLine(QFontMetrics(smaller), text) > width)
    smaller.setPixelSize(smaller.pixelSize() - 1);
  return smaller;
}

FittedText fitTwoLines(const QString& text, const QFont& font, int width) {
  const QFontMetrics metrics(font);
  if (widestLine(metrics, text) <= width) return {font, text, false};
  return fit(inTwoLines(text, metrics), font, width);
}

void tellWhatIsCut(QWidget& widget, const FittedText& shown, const QString& whole) {
  const QString tip = shown.cut ? whole : QString();
  if (widget.toolTip() != tip) widget.setToolTip(tip);
}

QPalette quietPalette() {
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(0xF4, 0xF2, 0xEC));
  palette.setColor(QPalette::WindowText, QColor(0x20, 0x20, 0x20));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF5, 0xEE));
  palette.setColor(QPalette::Text, QColor(0x14, 0x14, 0x14));
  palette.setColor(QPalette::Button, QColor(0xF0, 0xEE, 0xE8));
  palette.setColor(QPalette::ButtonText, QColor(0x14, 0x14, 0x14));
  palette.setColor(QPalette::Highlight, QColor(0x2F, 0x5D, 0x8C));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFF, 0xE1));
  palette.setColor(QPalette::ToolTipText, Qt::black);
  palette.setColor(QPalette::PlaceholderText, QColor(0x6D, 0x6D, 0x6D));
  for (const QPalette::ColorRole role :
       {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0x78, 0x76, 0x70));
  return palette;
}

QColor mixed(const QColor& a, const QColor& b, double shareOfB) {
  const auto mix = [&](int from, int to) {
    return static_cast<int>(std::lround(from + (to - from) * shareOfB));
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

}  // namespace korvantes::desktop
