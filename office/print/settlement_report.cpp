#include "office/print/settlement_report.h"

#include <array>
#include <utility>
#include <vector>

#include "office/print/settlement_notes.h"
#include "office/print/settlement_report_layout.h"

namespace korvantes::office {

using namespace settlement_layout;

namespace {

constexpr const char* kNoData = "No hay datos: la liquidación no existe o ha sido eliminada.";
constexpr const char* kNoNotes = "No hay albaranes en esta liquidación.";

QString invoicesOf(const Settlement& settlement) {
  if (settlement.collected && settlement.pending) return "Cobradas y pendientes";
  if (settlement.collected) return "Cobradas";
  return settlement.pending ? "Pendientes" : "Todas";
}

}  // namespace

SettlementReport::SettlementReport(std::optional<Settlement> settlement, ado::Recordset notes,
                                   ReportTexts texts, ado::Date printed)
    : PagedReport(printed),
      settlement_(std::move(settlement)),
      notes_(std::move(notes)),
      texts_(std::move(texts)),
      rows_(settlement_ ? notes_.RecordCount() : 0) {
  for (std::size_t row = 0; row < rows_; ++row) {
    const SettledNote note = settledNote(notes_, row);
    net_.add(note.net);
    commission_.add(note.commission);
  }
}

std::string SettlementReport::title() const {
  return settlement_ ? "Liquidación " + std::to_string(settlement_->number) : "Liquidación";
}

void SettlementReport::write(PageFlow& flow) const {
  writeHead(flow);
  if (!settlement_) return;
  writeNotes(flow);
  writeTotals(flow);
  writeRemarks(flow);
}

void SettlementReport::writeHead(PageFlow& flow) const {
  flow.line(kTitle, [&](Canvas& canvas, double y) {
    const QRectF box(0, y, kPageWidth, kTitle);
    canvas.text(box, Face::Title, "Liquidación de comisiones");
    if (settlement_)
      canvas.text(box, Face::Title, QString("Nº %1").arg(settlement_->number), Align::Right);
    canvas.rule(y + kTitle, Ink::Black);
  });
  flow.space(kSmallGap);
  if (!settlement_) {
    flow.line(kFact, [&](Canvas& canvas, double y) {
      canvas.text(QRectF(0, y, kPageWidth, kFact), Face::Text, kNoData);
    });
    return;
  }

  const QString agent =
      texts_.text(settlement_->agent) + "  " + texts_.text(settlement_->agentName);
  std::vector<std::pair<QString, QString>> left;
  for (const QString& line : flow.sheet()
                                 .face(Face::Heading)
                                 .wrapped(agent, (kAgentText - kSmallGap) * flow.sheet().across()))
    left.emplace_back(left.empty() ? "Agente" : "", line);
  left.emplace_back("NIF", texts_.text(settlement_->agentTaxNumber));
  const std::pair<QString, QString> right[] = {
      {"Fecha", texts_.date(settlement_->date, "Sin fecha")},
      {"Facturas hasta", texts_.date(settlement_->limitDate, "Sin límite")},
      {"Facturas", invoicesOf(*settlement_)}};

  for (std::size_t row = 0; row < std::max(left.size(), std::size(right)); ++row) {
    flow.line(kFact, [&](Canvas& canvas, double y) {
      double x = 0;
      const auto write = [&](double width, Face face, const QString& text, Ink ink) {
        canvas.text(QRectF(x, y, width, kFact), face, text, Align::Left, ink);
        x += width;
      };
      if (row < left.size()) {
        write(kAgentLabel, Face::Note, left[row].first, Ink::Grey);
        write(kAgentText, Face::Heading, left[row].second, Ink::Black);
      }
      x = kAgentLabel + kAgentText;
      if (row < std::size(right)) {
        write(kFactLabel, Face::Note, right[row].first, Ink::Grey);
        write(kFactText, Face::Strong, right[row].second, Ink::Black);
      }
    });
  }
  flow.space(kGap);
}

void SettlementReport::writeNotes(PageFlow& flow) const {
  const auto captions = [&flow] {
    flow.line(kCaptions, [&](Canvas& canvas, double y) { canvas.captions(y, kCaptions, kNotes); });
  };
  const auto continuation = [this, &flow] {
    flow.line(kContinuation, [&](Canvas& canvas, double y) {
      const double name = kPageWidth - kContinuedWidth;
      canvas.text(QRectF(0, y, name, kContinuation), Face::Strong,
                  QString::fromStdString(title()) + " · " + texts_.text(settlement_->agentName));
      canvas.text(QRectF(name, y, kContinuedWidth, kContinuation), Face::Text, "(continuación)",
                  Align::Right);
    });
  };
  flow.atTop([=] {
    continuation();
    captions();
  });
  flow.keep(kCaptions + kRow + kGrandTotal);
  captions();
  for (std::size_t first = 0; first < rows_;) {
    const std::size_t end = endOfInvoice(first);
    const double subtotal = end - first > 1 ? kSubtotal : 0;
    for (std::size_t row = first; row < end; ++row) {
      // A subtotal is never alone at the top of a page.
      flow.keep(kRow + (row + 1 == end ? subtotal : 0) + (row + 1 == rows_ ? kGrandTotal : 0));
      writeNote(flow, settledNote(notes_, row));
    }
    if (subtotal > 0) writeInvoiceTotal(flow, first, end);
    first = end;
  }
  if (rows_ == 0)
    flow.line(kRow, [&](Canvas& canvas, double y) {
      canvas.text(QRectF(0, y, kPageWidth, kRow), Face::Text, kNoNotes);
    });
  flow.line(kGrandTotal, [&](Canvas& canvas, double y) {
    canvas.rule(y, Ink::Black);
    const QString texts[] = {"Suma de " + counted(rows_, "albarán", "albaranes"),
                             texts_.amount(net_.value()), "", texts_.amount(commission_.value())};
    canvas.cells(y, kGrandTotal, Face::Strong, kSubtotals, texts);
  });
  flow.atTop(continuation);
}

std::size_t SettlementReport::endOfInvoice(std::size_t first) const {
  const SettledNote opening = settledNote(notes_, first);
  std::size_t end = first + 1;
  if (!opening.hasInvoice) return end;
  while (end < rows_ && settledNote(notes_, end).invoice == opening.invoice) ++end;
  return end;
}

void SettlementReport::writeNote(PageFlow& flow, const SettledNote& note) const {
  flow.line(kRow, [&](Canvas& canvas, double y) {
    std::array<QString, std::size(kNotes)> cells{
        note.hasInvoice ? texts_.document(note.invoiceSeries, note.invoiceNumber) : "sin factura",
        texts_.date(note.invoiceDate), texts_.document(note.noteSeries, note.noteNumber),
        texts_.text(note.customer)};
    if (note.exists) {
      cells[4] = texts_.amount(note.net);
      cells[5] = texts_.percent(note.percent());
      cells[6] = texts_.amount(note.commission);
    } else {
      cells[2] = "ya no existe";
    }
    canvas.cells(y, kRow, Face::Text, kNotes, cells);
    canvas.rule(y + kRow, Ink::Band);
  });
}

void SettlementReport::writeInvoiceTotal(PageFlow& flow, std::size_t first, std::size_t end) const {
  flow.line(kSubtotal, [&](Canvas& canvas, double y) {
    Total net, commission;
    for (std::size_t row = first; row < end; ++row) {
      const SettledNote note = settledNote(notes_, row);
      net.add(note.net);
      commission.add(note.commission);
    }
    const SettledNote note = settledNote(notes_, first);
    const QString texts[] = {"Factura " + texts_.document(note.invoiceSeries, note.invoiceNumber) +
                                 ": " + counted(end - first, "albarán", "albaranes"),
                             texts_.amount(net.value()), "", texts_.amount(commission.value())};
    canvas.cells(y, kSubtotal, Face::NoteStrong, kSubtotals, texts);
    canvas.rule(y + kSubtotal);
  });
}

void SettlementReport::writeTotals(PageFlow& flow) const {
  const std::pair<QString, QString> lines[] = {
      {"Base de comisiones", texts_.amount(inCents(settlement_->base))},
      {"Más IVA " + texts_.percent(settlement_->vatRate) + " %",
       texts_.amount(inCents(settlement_->vat))},
      {"Menos retención " + texts_.percent(settlement_->withholdingRate) + " %",
       texts_.amount(inCents(settlement_->withholding))}};
  const std::optional<ado::Decimal> base = inCents(settlement_->base);
  const bool changed = !base || *base != commission_.value();

  flow.space(kGap);
  flow.keep(static_cast<double>(std::size(lines)) * kAmountLine + kTotalLine +
            (changed ? kRemark : 0));
  for (const auto& [label, amount] : lines) {
    flow.line(kAmountLine, [&](Canvas& canvas, double y) {
      canvas.text(QRectF(kAmountsLeft, y, kAmountLabel, kAmountLine), Face::Text, label);
      canvas.number(QRectF(kAmountsLeft + kAmountLabel, y, kAmount, kAmountLine), Face::Text,
                    amount);
    });
  }
  flow.line(kTotalLine, [&](Canvas& canvas, double y) {
    canvas.band(QRectF(kAmountsLeft, y, kAmountLabel + kAmount, kTotalLine));
    canvas.rule(y, Ink::Black, kAmountsLeft);
    canvas.text(QRectF(kAmountsLeft, y, kAmountLabel, kTotalLine), Face::Heading,
                "Total de la liquidación");
    canvas.number(QRectF(kAmountsLeft + kAmountLabel, y, kAmount, kTotalLine), Face::Heading,
                  texts_.amount(inCents(settlement_->total)));
  });
  if (!changed) return;
  flow.line(kRemark, [&](Canvas& canvas, double y) {
    canvas.text(QRectF(0, y, kPageWidth, kRemark), Face::Note,
                changedSinceSettled(texts_.amount(commission_.value())), Align::Right, Ink::Grey);
  });
}

void SettlementReport::writeRemarks(PageFlow& flow) const {
  if (texts_.text(settlement_->remarks).isEmpty()) return;
  flow.space(kGap);
  flow.keep(kFact + kRemark);
  flow.line(kFact, [&](Canvas& canvas, double y) {
    canvas.text(QRectF(0, y, kPageWidth, kFact), Face::NoteStrong, "Observaciones");
  });
  const QStringList lines = flow.sheet()
                                .face(Face::Text)
                                .wrapped(QString::fromStdString(settlement_->remarks.text()),
                                         (kPageWidth - kGap) * flow.sheet().across());
  for (const QString& text : lines) {
    flow.line(kRemark, [&](Canvas& canvas, double y) {
      canvas.text(QRectF(0, y, kPageWidth, kRemark), Face::Text, text);
    });
  }
}

}  // namespace korvantes::office
