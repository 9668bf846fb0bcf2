#include "office/print/typeface.h"

#include <QTextLayout>
#include <QTextOption>

namespace korvantes::office {

namespace {

QFont fontOf(double points, bool bold) {
  QFont font;
  font.setFamilies({"Liberation Sans", "Arial", "Helvetica", "DejaVu Sans"});
  font.setStyleHint(QFont::SansSerif);
  font.setPointSizeF(points);
  font.setBold(bold);
  // Without kerning a text is as wide as the sum of its letters.
  font.setKerning(false);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

}  // namespace

Typeface::Typeface(double points, bool bold, QPaintDevice& device)
    : device_(&device),
      font_(fontOf(points, bold), &device),
      metrics_(font_, &device),
      ascent_(metrics_.ascent()),
      descent_(metrics_.descent()) {
  for (char16_t letter = u' '; letter < kKept; ++letter)
    advances_[letter] = metrics_.horizontalAdvance(QChar(letter));
}

double Typeface::width(const QString& text) const {
  double sum = 0;
  for (const QChar letter : text) {
    // Other letters may combine, join, or come from another font.
    if (letter.unicode() >= kKept) return metrics_.horizontalAdvance(text);
    sum += advances_[letter.unicode()];
  }
  return sum;
}

QString Typeface::elided(const QString& text, double width) const {
  if (this->width(text) <= width) return text;
  return metrics_.elidedText(text, Qt::ElideRight, width);
}

QStringList Typeface::wrapped(const QString& text, double width) const {
  QStringList lines;
  // A word wider than the line is broken rather than cut.
  QTextOption option;
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  QString paragraphs = text;
  paragraphs.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  for (const QString& paragraph : paragraphs.split(u'\n')) {
    QTextLayout layout(paragraph, font_, device_);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
      line.setLineWidth(width);
      lines += paragraph.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
  }
  return lines;
}

QFont Typeface::fitting(const QString& text, double width) const {
  QFont smaller = font_;
  smaller.setPointSizeF(font_.pointSizeF() * width / this->width(text));
  return smaller;
}

}  // namespace korvantes::office
