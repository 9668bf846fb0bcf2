#include "office/print/paged_report.h"

#include <QPageLayout>
#include <QPagedPaintDevice>
#include <QPainter>

#include "runtime/ado/error.h"

namespace korvantes::office {

namespace {

constexpr QMarginsF kMargins(15, 14, 15, 10);

}  // namespace

void PagedReport::setUp(QPagedPaintDevice& device) const {
  device.setPageLayout(QPageLayout(QPageSize(QPageSize::A4), QPageLayout::Portrait, kMargins,
                                   QPageLayout::Millimeter));
}

void PagedReport::paint(QPagedPaintDevice& device) const {
  QPainter painter;
  if (!painter.begin(&device)) throw ado::Error(0, "No se puede escribir en la impresora");
  const Sheet sheet(device);

  PageFlow counting(sheet);
  write(counting);

  const QString foot = QString::fromStdString(title() + " · Impreso el " + printed_.dayFirst());
  PageFlow painting(sheet, device, painter, {foot, counting.pages()});
  write(painting);
  if (!painter.end()) throw ado::Error(0, "No se ha podido terminar la impresión");
}

}  // namespace korvantes::office
