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

/// A column of a table. Its width is in millimetres of a page kPageWidth wide.
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
  /// Device units per millimetre of the layout. On paper of another width the columns change, never
  /// the type size.
  double across() const { return across_; }
  double down() const { return down_; }

 private:
  double height_, across_, down_;
  std::vector<Typeface> faces_;
};

/// Paints on a page, in millimetres from the top left corner of the printable area.
class Canvas {
 public:
  Canvas(const Sheet& sheet, QPainter& painter) : sheet_(&sheet), painter_(&painter) {}

  /// One line of text, centred vertically; a text that is too wide ends in an ellipsis.
  void text(const QRectF& box, Face face, const QString& text, Align align = Align::Left,
            Ink ink = Ink::Black);
  /// One line at the right edge, made smaller where needed and never cut.
  void number(const QRectF& box, Face face, const QString& digits, Ink ink = Ink::Black);
  /// A line of a table. Texts are elided; numbers (right-aligned) never are.
  void cells(double y, double height, Face face, std::span<const Column> columns,
             std::span<const QString> texts, Ink ink = Ink::Black);
  /// The same with each column's caption in small type before its number.
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
