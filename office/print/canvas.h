#pragma once

#include <QRectF>
#include <QString>
#include <span>
#include <vector>

#include "office/print/typeface.h"

class QPagedPaintDevice;
class QPainter;

namespace korvantes::office {

enum class Face { Title, Heading, Text, Strong, Note, NoteStrong };
enum class Ink { Black, Grey, Rule, Band };
enum class Align { Left, Right };

/// A column of a table: widths are in millimetres of a page's width of kPageWidth.
struct Column {
  const char* caption;
  double width;
  Align align;
};

/// Width between the margins of A4.
constexpr double kPageWidth = 180;

/// The printable area of a device and its fonts.
class Sheet {
 public:
  explicit Sheet(QPagedPaintDevice& device);

  double height() const { return height_; }  ///< millimetres
  const Typeface& face(Face face) const { return faces_[static_cast<std::size_t>(face)]; }
  /// Units of the device to a millimetre of the layout. Paper of another width makes columns wider
  /// or narrower, never the type.
  double across() const { return across_; }
  double down() const { return down_; }

 private:
  double height_, across_, down_;
  std::vector<Typeface> faces_;
};

/// Paints on a page, in millimetres from the upper left corner of the printable area.
class Canvas {
 public:
  Canvas(const Sheet& sheet, QPainter& painter) : sheet_(&sheet), painter_(&painter) {}

  /// One line of text in the middle of the box's height; a text too wide ends in an ellipsis.
  void text(const QRectF& box, Face face, const QString& text, Align align = Align::Left,
            Ink ink = Ink::Black);
  /// One at the right end that is never cut, but made smaller where it must be.
  void number(const QRectF& box, Face face, const QString& digits, Ink ink = Ink::Black);
  /// A line of a table; texts are elided, numbers (aligned to the right) are not.
  void cells(double y, double height, Face face, std::span<const Column> columns,
             std::span<const QString> texts, Ink ink = Ink::Black);
  /// The same with each column's caption in small type in front of its number.
  void labelledCells(double y, double height, Face face, std::span<const Column> columns,
                     std::span<const QString> texts);
  void captions(double y, double height, std::span<const Column> columns);
  void rule(double y, Ink ink = Ink::Rule, double from = 0, double to = kPageWidth);
  void band(const QRectF& box);

 private:
  void draw(const QRectF& box, Face face, const QString& text, double x, Ink ink);

  const Sheet* sheet_;
  QPainter* painter_;
};

}  // namespace korvantes::office
