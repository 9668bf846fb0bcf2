#pragma once

#include <QString>
#include <functional>

#include "office/print/canvas.h"

class QPagedPaintDevice;
class QPainter;

namespace korvantes::office {

/// Lays out lines one below the other, across pages. A flow without a painter only counts pages, so
/// a report of any length gets its number of pages without being kept in memory.
class PageFlow {
 public:
  /// Printed at the foot of every page, with the page number.
  struct Foot {
    QString text;
    int pages = 0;
  };

  /// Counts.
  explicit PageFlow(const Sheet& sheet);
  /// Paints; the painter is active on the device.
  PageFlow(const Sheet& sheet, QPagedPaintDevice& device, QPainter& painter, Foot foot);

  const Sheet& sheet() const { return sheet_; }
  int pages() const { return page_; }

  /// Called at the top of each new page from now on.
  void atTop(std::function<void()> heading) { heading_ = std::move(heading); }
  /// Begins a new page unless the next lines, of this height in millimetres, fit together.
  void keep(double height);
  /// A line. `paint` is called with its canvas and its upper edge when the flow paints.
  template <class Paint>
  void line(double height, Paint&& paint) {
    keep(height);
    if (painter_ != nullptr) {
      Canvas canvas(sheet_, *painter_);
      paint(canvas, y_);
    }
    y_ += height;
  }
  /// Leaves a gap, except at the end of a page.
  void space(double height) { y_ += height; }

 private:
  void beginPage();
  void paintFoot();

  const Sheet& sheet_;
  QPagedPaintDevice* device_ = nullptr;
  QPainter* painter_ = nullptr;
  Foot foot_;
  std::function<void()> heading_;
  int page_ = 1;
  double y_ = 0;
  /// Where the page's own heading ends: from here another page would gain nothing.
  double top_ = 0;
};

}  // namespace korvantes::office
