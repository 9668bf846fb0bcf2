#include "office/print/page_flow.h"

#include <QPagedPaintDevice>
#include <QPainter>

#include "runtime/ado/error.h"

namespace korvantes::office {

namespace {

constexpr double kFootHeight = 8;
constexpr double kFootLine = 5;
constexpr double kPageNumberWidth = 40;

}  // namespace

PageFlow::PageFlow(const Sheet& sheet) : sheet_(sheet) {}

PageFlow::PageFlow(const Sheet& sheet, QPagedPaintDevice& device, QPainter& painter, Foot foot)
    : sheet_(sheet), device_(&device), painter_(&painter), foot_(std::move(foot)) {
  paintFoot();
}

void PageFlow::keep(double height) {
  if (y_ + height > sheet_.height() - kFootHeight && y_ > top_) beginPage();
}

void PageFlow::beginPage() {
  if (device_ != nullptr && !device_->newPage())
    throw ado::Error(
        0, "No se ha podido empezar la página " + std::to_string(page_ + 1) + " del informe");
  ++page_;
  y_ = 0;
  if (painter_ != nullptr) paintFoot();
  if (heading_) heading_();
  top_ = y_;
}

void PageFlow::paintFoot() {
  Canvas canvas(sheet_, *painter_);
  const double y = sheet_.height() - kFootLine;
  canvas.rule(y);
  canvas.text(QRectF(0, y, kPageWidth - kPageNumberWidth, kFootLine), Face::Note, foot_.text,
              Align::Left, Ink::Grey);
  canvas.text(QRectF(kPageWidth - kPageNumberWidth, y, kPageNumberWidth, kFootLine), Face::Note,
              QString("Página %1 de %2").arg(page_).arg(foot_.pages), Align::Right, Ink::Grey);
}

}  // namespace korvantes::office
