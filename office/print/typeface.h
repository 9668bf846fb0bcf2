#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QString>
#include <QStringList>
#include <array>

class QPaintDevice;

namespace korvantes::office {

/// A font on a device, with cached letter widths: a report of many thousand rows must not lay out
/// each cell just to measure it. All measures are in units of the device.
class Typeface {
 public:
  Typeface(double points, bool bold, QPaintDevice& device);

  const QFont& font() const { return font_; }
  double ascent() const { return ascent_; }
  double descent() const { return descent_; }

  double width(const QString& text) const;
  /// The text, or its beginning with an ellipsis when it is wider.
  QString elided(const QString& text, double width) const;
  /// The lines of a text within a width. Line breaks in the text count, and a word longer than a
  /// line is broken.
  QStringList wrapped(const QString& text, double width) const;
  /// The font made smaller until the text fits.
  QFont fitting(const QString& text, double width) const;

 private:
  /// Widths are kept up to the end of Latin Extended-A.
  static constexpr char16_t kKept = 0x180;

  QPaintDevice* device_;
  QFont font_;
  QFontMetricsF metrics_;
  double ascent_, descent_;
  std::array<double, kKept> advances_{};
};

}  // namespace korvantes::office
