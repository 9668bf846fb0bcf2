#pragma once

#include <QString>
#include <functional>

#include "office/print/canvas.h"

class QPagedPaintDevice;
class QPainter;

namespace korvantes::office {

/// Lines one below the other, from page to page. A flow without a painter only counts the pages, so
/// that a report of any length is told its number of pages without being kept in memory.
class PageFlow {
 public:
  /// Stands at the foot of every page, with the number of the page.
  struct Foot {
    QString text;
    int pages = 0;
  };

  /// Counts.
  explicit PageFlow(const Sheet& sheet);
  /// Paints; the painter is at work on the device.
  PageFlow(const Sheet& sheet, QPagedPaintDevice& device, QPainter& painter, Foot foot);

  const Sheet& sheet() const { return sheet_; }
  int pages() const { return page_; }

  /// Written at the top of each page that begins from now on.
  void atTop(std::function<void()> heading) { heading_ = std::move(heading); }
  /// Begins a page unless the lines that follow, this many millimetres high together, fit.
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
  /// Leaves room, but not at the end of a page.
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
  /// Below the heading of the page: nothing is gained by another page.
  double top_ = 0;
};

}  // namespace korvantes::office
