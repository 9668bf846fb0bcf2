#include "office/print/canvas.h"

#include <QColor>
#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPen>

namespace korvantes::office {

namespace {

constexpr double kMillimetresPerInch = 25.4;
constexpr double kPadding = 0.8;
constexpr double kRuleWidth = 0.2;

struct FaceSize {
  double points;
  bool bold;
};
constexpr FaceSize kFaces[] = {{15, true},  {10, true},   {8.5, false},
                               {8.5, true}, {7.5, false}, {7.5, true}};

constexpr QRgb kInks[] = {0xFF000000, 0xFF5A5A5A, 0xFF9AA5B1, 0xFFE8EDF2};

QColor colour(Ink ink) {
  return QColor::fromRgb(kInks[static_cast<std::size_t>(ink)]);
}

}  // namespace

Sheet::Sheet(QPagedPaintDevice& device) {
  const QRectF page = device.pageLayout().paintRect(QPageLayout::Millimeter);
  height_ = page.height();
  down_ = device.logicalDpiY() / kMillimetresPerInch;
  across_ = device.logicalDpiX() / kMillimetresPerInch * page.width() / kPageWidth;
  for (const FaceSize& face : kFaces) faces_.emplace_back(face.points, face.bold, device);
}

void Canvas::text(const QRectF& box, Face face, const QString& text, Align align, Ink ink) {
  if (text.isEmpty()) return;
  const Typeface& type = sheet_->face(face);
  const double room = (box.width() - 2 * kPadding) * sheet_->across();
  const QString shown = type.elided(text, room);
  const double left = (box.x() + kPadding) * sheet_->across();
  draw(box, face, shown, align == Align::Left ? left : left + room - type.width(shown), ink);
}

void Canvas::number(const QRectF& box, Face face, const QString& digits, Ink ink) {
  const Typeface& type = sheet_->face(face);
  const double room = (box.width() - 2 * kPadding) * sheet_->across();
  const double width = type.width(digits);
  const double left = (box.x() + kPadding) * sheet_->across();
  if (width <= room) {
    draw(box, face, digits, left + room - width, ink);
    return;
  }
  const QFont usual = painter_->font();
  painter_->setFont(type.fitting(digits, room));
  painter_->setPen(colour(ink));
  painter_->drawText(
      QPointF(left, (box.center().y()) * sheet_->down() + (type.ascent() - type.descent()) / 2),
      digits);
  painter_->setFont(usual);
}

void Canvas::draw(const QRectF& box, Face face, const QString& text, double x, Ink ink) {
  const Typeface& type = sheet_->face(face);
  painter_->setFont(type.font());
  painter_->setPen(colour(ink));
  const double baseline = box.center().y() * sheet_->down() + (type.ascent() - type.descent()) / 2;
  painter_->drawText(QPointF(x, baseline), text);
}

void Canvas::cells(double y, double height, Face face, std::span<const Column> columns,
                   std::span<const QString> texts, Ink ink) {
  double x = 0;
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const QRectF box(x, y, columns[column].width, height);
    if (columns[column].align == Align::Right)
      number(box, face, texts[column], ink);
    else
      text(box, face, texts[column], Align::Left, ink);
    x += columns[column].width;
  }
}

void Canvas::labelledCells(double y, double height, Face face, std::span<const Column> columns,
                           std::span<const QString> texts) {
  double x = 0;
  for (std::size_t column = 0; column < columns.size(); ++column) {
    const double digits = sheet_->face(face).width(texts[column]) / sheet_->across() + kPadding;
    text(QRectF(x, y, columns[column].width - digits, height), Face::Note,
         QString::fromUtf8(columns[column].caption), Align::Right, Ink::Grey);
    x += columns[column].width;
  }
  cells(y, height, face, columns, texts);
}

void Canvas::captions(double y, double height, std::span<const Column> columns) {
  double x = 0;
  band(QRectF(0, y, kPageWidth, height));
  for (const Column& column : columns) {
    text(QRectF(x, y, column.width, height), Face::NoteStrong, QString::fromUtf8(column.caption),
         column.align);
    x += column.width;
  }
}

void Canvas::rule(double y, Ink ink, double from, double to) {
  painter_->setPen(QPen(colour(ink), kRuleWidth * sheet_->down()));
  painter_->drawLine(QPointF(from * sheet_->across(), y * sheet_->down()),
                     QPointF(to * sheet_->across(), y * sheet_->down()));
}

void Canvas::band(const QRectF& box) {
  painter_->fillRect(QRectF(box.x() * sheet_->across(), box.y() * sheet_->down(),
                            box.width() * sheet_->across(), box.height() * sheet_->down()),
                     colour(Ink::Band));
}

}  // namespace korvantes::office
