#include "desktop/icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <array>

#include "desktop/look.h"

namespace korvantes::desktop {

namespace {

// All drawings fill a square of 16 by 16 units.
const QColor kInk(0x3A, 0x3F, 0x47);
const QColor kPaper(0xFF, 0xFF, 0xFF);
const QColor kBlue(0x2F, 0x5D, 0x8C);
const QColor kGreen(0x2E, 0x7D, 0x4F);
const QColor kRed(0xB0, 0x2A, 0x2A);
const QColor kAmber(0xE0, 0x9A, 0x1E);

QPen pen(const QColor& color, double width) {
  return {color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin};
}

/// A sheet with a turned corner.
void sheet(QPainter& painter, const QRectF& area) {
  const double corner = 3;
  QPainterPath path(area.topLeft());
  path.lineTo(area.right() - corner, area.top());
  path.lineTo(area.right(), area.top() + corner);
  path.lineTo(area.bottomRight());
  path.lineTo(area.bottomLeft());
  path.closeSubpath();
  painter.setPen(pen(kInk, 1.1));
  painter.setBrush(kPaper);
  painter.drawPath(path);
}

void lines(QPainter& painter, double left, double right, std::initializer_list<double> heights) {
  for (const double y : heights) painter.drawLine(QPointF(left, y), QPointF(right, y));
}

void search(QPainter& painter) {
  painter.setPen(pen(kInk, 2.6));
  painter.drawLine(QPointF(10, 10), QPointF(14, 14));
  painter.setPen(pen(kBlue, 1.6));
  painter.setBrush(QColor(0xE4, 0xEE, 0xF8));
  painter.drawEllipse(QPointF(6.5, 6.5), 4.7, 4.7);
}

void print(QPainter& painter) {
  painter.setPen(pen(kInk, 1.1));
  painter.setBrush(kPaper);
  painter.drawRect(QRectF(4, 1.5, 8, 5));
  painter.setBrush(QColor(0xB9, 0xBF, 0xC7));
  painter.drawRoundedRect(QRectF(1.5, 6, 13, 6), 1.2, 1.2);
  painter.setBrush(kPaper);
  painter.drawRect(QRectF(4, 9.5, 8, 5));
  painter.setPen(pen(kBlue, 1));
  lines(painter, 5.8, 10.2, {11.4, 13});
}

void spreadsheet(QPainter& painter) {
  painter.setPen(pen(kGreen, 1.2));
  painter.setBrush(kPaper);
  painter.drawRoundedRect(QRectF(1.5, 2, 13, 12), 1, 1);
  painter.fillRect(QRectF(2, 2.5, 12, 3), kGreen);
  painter.setPen(pen(kGreen, 0.9));
  lines(painter, 2, 14, {8.4, 11.2});
  painter.drawLine(QPointF(6, 5.5), QPointF(6, 13.5));
  painter.drawLine(QPointF(10, 5.5), QPointF(10, 13.5));
}

void tick(QPainter& painter, const QColor& color, const QPointF& place, double size) {
  painter.setPen(pen(color, 1.7));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(QPolygonF{place + QPointF(0, 0.5 * size),
                                 place + QPointF(0.4 * size, 0.9 * size),
                                 place + QPointF(size, 0.05 * size)});
}

void tickAll(QPainter& painter) {
  painter.setPen(pen(kInk, 1.1));
  painter.setBrush(kPaper);
  painter.drawRoundedRect(QRectF(4.5, 1.5, 10, 10), 1.2, 1.2);
  painter.drawRoundedRect(QRectF(1.5, 4.5, 10, 10), 1.2, 1.2);
  tick(painter, kGreen, {3.6, 6.6}, 6);
}

void cancel(QPainter& painter) {
  painter.setPen(pen(kRed, 1.7));
  painter.setBrush(QColor(0xFB, 0xEC, 0xEC));
  painter.drawEllipse(QPointF(8, 8), 6, 6);
  painter.drawLine(QPointF(3.9, 12.1), QPointF(12.1, 3.9));
}

void bin(QPainter& painter) {
  painter.setPen(pen(kRed, 1.3));
  painter.setBrush(QColor(0xFB, 0xEC, 0xEC));
  painter.drawPolygon(QPolygonF{{3.6, 5}, {12.4, 5}, {11.6, 14.3}, {4.4, 14.3}});
  painter.drawLine(QPointF(2.2, 4), QPointF(13.8, 4));
  painter.drawPolyline(QPolygonF{{6, 3.8}, {6, 1.9}, {10, 1.9}, {10, 3.8}});
  for (const double x : {6.4, 8.0, 9.6}) painter.drawLine(QPointF(x, 7), QPointF(x, 12.4));
}

void disk(QPainter& painter) {
  painter.setPen(pen(kBlue, 1.1));
  painter.setBrush(QColor(0x5B, 0x86, 0xB5));
  painter.drawPolygon(QPolygonF{{1.7, 1.7}, {12, 1.7}, {14.3, 4}, {14.3, 14.3}, {1.7, 14.3}});
  painter.fillRect(QRectF(4.2, 8.4, 7.6, 5.5), kPaper);
  painter.fillRect(QRectF(4.6, 2.2, 6, 3.8), QColor(0xDD, 0xE6, 0xF0));
  painter.fillRect(QRectF(8.2, 2.7, 1.6, 2.8), kBlue);
}

void leave(QPainter& painter) {
  painter.setPen(pen(kInk, 1.2));
  painter.setBrush(QColor(0xE9, 0xE4, 0xD6));
  painter.drawRect(QRectF(2, 1.8, 7, 12.4));
  painter.setPen(pen(kRed, 1.9));
  painter.drawLine(QPointF(6.5, 8), QPointF(13.6, 8));
  painter.drawPolyline(QPolygonF{{10.8, 5.2}, {13.8, 8}, {10.8, 10.8}});
}

void newSheet(QPainter& painter) {
  sheet(painter, {2.5, 1.5, 9.5, 13});
  painter.setPen(pen(kGreen, 2));
  painter.drawLine(QPointF(11.5, 8.2), QPointF(11.5, 14.2));
  painter.drawLine(QPointF(8.5, 11.2), QPointF(14.5, 11.2));
}

void landscape(QPainter& painter) {
  painter.setPen(pen(kInk, 1.1));
  painter.setBrush(QColor(0xDD, 0xEA, 0xF7));
  painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 11), 1, 1);
  painter.setPen(Qt::NoPen);
  painter.setBrush(kAmber);
  painter.drawEllipse(QPointF(11, 5.8), 1.5, 1.5);
  painter.setBrush(kGreen);
  painter.drawPolygon(QPolygonF{{2.2, 12.8}, {6, 7}, {8.6, 10.4}, {10.2, 8.8}, {13.8, 12.8}});
}

void people(QPainter& painter) {
  const auto person = [&](double x, double y, const QColor& color) {
    painter.setPen(pen(kPaper, 0.8));
    painter.setBrush(color);
    QPainterPath body(QPointF(x - 4.2, y + 8.4));
    body.cubicTo(x - 4.2, y + 3, x + 4.2, y + 3, x + 4.2, y + 8.4);
    body.closeSubpath();
    painter.drawPath(body);
    painter.drawEllipse(QPointF(x, y + 1.6), 2.5, 2.7);
  };
  person(10.6, 2.6, QColor(0x8F, 0xA9, 0xC4));
  person(5.8, 5.2, kBlue);
}

void coins(QPainter& painter) {
  sheet(painter, {2, 1.5, 9, 13});
  painter.setPen(pen(kBlue, 1));
  lines(painter, 4, 9, {5.2, 7.4, 9.6});
  painter.setPen(pen(QColor(0x9A, 0x68, 0x10), 1));
  painter.setBrush(kAmber);
  painter.drawEllipse(QPointF(11, 11.2), 3.4, 3.4);
  painter.setPen(pen(kPaper, 1.2));
  painter.drawArc(QRectF(9.6, 9.6, 3.2, 3.2), 45 * 16, 270 * 16);
}

void report(QPainter& painter) {
  sheet(painter, {2.5, 1.5, 11, 13});
  painter.setPen(pen(kInk, 1));
  lines(painter, 4.6, 9, {4.6});
  painter.fillRect(QRectF(4.8, 9.4, 1.8, 3.4), kBlue);
  painter.fillRect(QRectF(7.2, 7, 1.8, 5.8), kGreen);
  painter.fillRect(QRectF(9.6, 8.4, 1.8, 4.4), kAmber);
}

void database(QPainter& painter) {
  painter.setPen(pen(kBlue, 1.1));
  painter.setBrush(QColor(0xDD, 0xE6, 0xF0));
  for (const double y : {11.5, 7.8, 4.1}) {
    painter.drawRect(QRectF(2.5, y - 0.2, 11, 2.2));
    painter.drawEllipse(QRectF(2.5, y + 0.5, 11, 3));
    painter.fillRect(QRectF(3.1, y - 0.4, 9.8, 2.4), QColor(0xDD, 0xE6, 0xF0));
  }
  painter.drawEllipse(QRectF(2.5, 1.6, 11, 3.4));
}

void letterIn(QPainter& painter, const QString& letter) {
  QFont font(QStringList{"Liberation Sans", "Arial", "DejaVu Sans"});
  font.setPixelSize(11);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(kPaper);
  painter.drawText(QRectF(0, 0, 16, 16), Qt::AlignCenter, letter);
}

void disc(QPainter& painter, const QColor& color) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawEllipse(QPointF(8, 8), 7, 7);
}

void critical(QPainter& painter) {
  disc(painter, kRed);
  painter.setPen(pen(kPaper, 1.9));
  painter.drawLine(QPointF(5.4, 5.4), QPointF(10.6, 10.6));
  painter.drawLine(QPointF(5.4, 10.6), QPointF(10.6, 5.4));
}

void question(QPainter& painter) {
  disc(painter, kBlue);
  letterIn(painter, "?");
}

void information(QPainter& painter) {
  disc(painter, kBlue);
  letterIn(painter, "i");
}

void exclamation(QPainter& painter) {
  painter.setPen(pen(QColor(0x9A, 0x68, 0x10), 1));
  painter.setBrush(QColor(0xF6, 0xC1, 0x45));
  painter.drawPolygon(QPolygonF{{8, 1.4}, {15, 14.2}, {1, 14.2}});
  painter.setPen(pen(kInk, 1.7));
  painter.drawLine(QPointF(8, 6), QPointF(8, 9.8));
  painter.drawPoint(QPointF(8, 12.2));
}

void pdf(QPainter& painter) {
  sheet(painter, {2.5, 1.5, 10.5, 13});
  painter.setPen(Qt::NoPen);
  painter.setBrush(kRed);
  painter.drawRoundedRect(QRectF(1, 7.6, 11, 4.6), 0.8, 0.8);
  QFont font(QStringList{"Liberation Sans", "Arial", "DejaVu Sans"});
  font.setPixelSize(5);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(kPaper);
  painter.drawText(QRectF(1, 7.6, 11, 4.6), Qt::AlignCenter, "PDF");
}

void arrow(QPainter& painter, double direction) {
  painter.setPen(pen(kBlue, 2.2));
  painter.setBrush(Qt::NoBrush);
  painter.drawPolyline(
      QPolygonF{{8 - 2.5 * direction, 3.5}, {8 + 2.5 * direction, 8}, {8 - 2.5 * direction, 12.5}});
}

void previous(QPainter& painter) {
  arrow(painter, -1);
}

void next(QPainter& painter) {
  arrow(painter, 1);
}

void smaller(QPainter& painter) {
  search(painter);
  painter.drawLine(QPointF(4.4, 6.5), QPointF(8.6, 6.5));
}

void larger(QPainter& painter) {
  smaller(painter);
  painter.drawLine(QPointF(6.5, 4.4), QPointF(6.5, 8.6));
}

struct Drawing {
  const char* name;
  void (*paint)(QPainter&);
};

constexpr std::array kDrawings{
    Drawing{"buscar", search},     Drawing{"imprimir", print},
    Drawing{"hoja", spreadsheet},  Drawing{"marcar", tickAll},
    Drawing{"cancelar", cancel},   Drawing{"borrar", bin},
    Drawing{"guardar", disk},      Drawing{"salir", leave},
    Drawing{"nuevo", newSheet},    Drawing{"imagen", landscape},
    Drawing{"agentes", people},    Drawing{"liquidacion", coins},
    Drawing{"informe", report},    Drawing{"pdf", pdf},
    Drawing{"anterior", previous}, Drawing{"siguiente", next},
    Drawing{"alejar", smaller},    Drawing{"acercar", larger},
    Drawing{"base", database},     Drawing{"acerca", information},
    Drawing{"critico", critical},  Drawing{"pregunta", question},
    Drawing{"aviso", exclamation}, Drawing{"informacion", information},
};

const Drawing* drawingNamed(const QString& name) {
  for (const Drawing& drawing : kDrawings)
    if (name == QLatin1StringView(drawing.name)) return &drawing;
  return nullptr;
}

class PaintedIcon : public QIconEngine {
 public:
  explicit PaintedIcon(QString name) : name_(std::move(name)) {}
  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    paintIcon(*painter, name_, rect, mode != QIcon::Disabled);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap drawn(size);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return drawn;
  }
  QIconEngine* clone() const override { return std::make_unique<PaintedIcon>(name_).release(); }

 private:
  QString name_;
};

}  // namespace

void paintIcon(QPainter& painter, const QString& name, const QRectF& area, bool enabled) {
  const Drawing* drawing = drawingNamed(name);
  if (drawing == nullptr) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(area.topLeft());
  painter.scale(area.width() / 16, area.height() / 16);
  if (!enabled) painter.setOpacity(0.4);
  drawing->paint(painter);
  painter.restore();
}

bool hasIcon(const QString& name) {
  return drawingNamed(name) != nullptr;
}

QIcon iconNamed(const QString& name) {
  return hasIcon(name) ? QIcon(std::make_unique<PaintedIcon>(name).release()) : QIcon();
}

}  // namespace korvantes::desktop
