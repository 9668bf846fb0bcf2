#include "office/print/settlement_list_report.h"

#include <algorithm>
#include <utility>

#include "office/print/settlement_list_layout.h"

namespace korvantes::office {

using namespace list_layout;

namespace {

constexpr const char* kNoData = "No hay datos entre los límites de la búsqueda.";
constexpr const char* kContinued = " (continuación)";

QRectF wholeLine(double y, double height) {
  return {0, y, kPageWidth, height};
}

}  // namespace

SettlementListReport::SettlementListReport(SettlementList list, std::string limits,
                                           ReportTexts texts, ado::Date printed)
    : PagedReport(printed),
      list_(std::move(list)),
      limits_(std::move(limits)),
      texts_(std::move(texts)) {}

void SettlementListReport::write(PageFlow& flow) const {
  flow.line(kTitle, [&](Canvas& canvas, double y) {
    canvas.text(wholeLine(y, kTitle), Face::Title, QString::fromStdString(title()));
  });
  flow.line(kLimits, [&](Canvas& canvas, double y) {
    canvas.text(wholeLine(y, kLimits), Face::Text, texts_.text(limits_), Align::Left, Ink::Grey);
  });
  flow.space(kGap);
  writeCaptions(flow);
  if (list_.agents().empty()) {
    flow.line(kAgent, [](Canvas& canvas, double y) {
      canvas.text(wholeLine(y, kAgent), Face::Text, kNoData);
    });
    return;
  }

  Open open;
  flow.atTop([&] {
    writeCaptions(flow);
    if (open.agent != nullptr) writeAgentHeading(flow, *open.agent, kContinued);
    if (open.settlement != nullptr)
      writeSettlementHeading(flow, *open.day, *open.settlement, kContinued);
  });
  for (const ListedAgent& agent : list_.agents()) writeAgent(flow, agent, open);
  writeSums(flow, kGrandTotal,
            "Total de " + counted(list_.settlements(), "liquidación", "liquidaciones"),
            list_.sums());
}

void SettlementListReport::writeAgent(PageFlow& flow, const ListedAgent& agent, Open& open) const {
  const double totals = kAgentTotal + (&agent == &list_.agents().back() ? kGrandTotal : 0);
  for (const ListedDay& day : agent.days) {
    const bool lastDay = &day == &agent.days.back();
    for (const ListedSettlement& settlement : day.settlements) {
      // What follows the settlement's last row and must not begin a page.
      double after = closing(day, settlement);
      if (&settlement == &day.settlements.back()) after += closing(day) + (lastDay ? totals : 0);
      writeSettlement(flow, {&agent, &day, &settlement}, after, open);
    }
    if (day.settlements.size() > 1)
      writeSums(flow, kDayTotal, day.date.isNull() ? "Total sin fecha" : "Total del " + dateOf(day),
                day.sums);
    writeRemarks(flow, remarksOn(day));
  }
  open = {};
  const ado::Variant& code = list_.cell(agent.firstRow, list_.columns().agent);
  writeSums(flow, kAgentTotal, "Total agente " + texts_.text(code), agent.sums);
}

void SettlementListReport::writeSettlement(PageFlow& flow, const Open& groups, double after,
                                           Open& open) const {
  const bool newAgent = open.agent == nullptr;
  const ListedSettlement& settlement = *groups.settlement;
  const std::size_t opening = std::min(settlement.rows.size(), kOpeningRows);
  flow.keep((newAgent ? kAgent : 0) + kSettlement + static_cast<double>(opening) * kRow +
            (opening == settlement.rows.size() ? after : 0));
  if (newAgent) writeAgentHeading(flow, *groups.agent, "");
  open.agent = groups.agent;
  writeSettlementHeading(flow, *groups.day, settlement, "");
  open = groups;
  for (const std::uint32_t row : settlement.rows) {
    if (row == settlement.rows.back()) flow.keep(kRow + after);
    writeInvoice(flow, row);
  }
  open.settlement = nullptr;
  if (settlement.found)
    writeSums(flow, kSettlementTotal, "Total liquidación " + QString::number(settlement.number),
              settlement.sums);
  writeRemarks(flow, remarksOn(*groups.day, settlement));
}

std::vector<QString> SettlementListReport::remarksOn(const ListedDay& day,
                                                     const ListedSettlement& settlement) const {
  if (!settlement.found)
    return {
        "La liquidación ha cambiado o ya no existe desde la búsqueda: no cuenta en los totales."};
  std::vector<QString> remarks;
  const bool several = day.settlements.size() > 1;
  if (settlement.rows.empty()) {
    remarks.push_back(
        "Sin filas propias: sus facturas están en las de otra liquidación del día, o "
        "ya no existen.");
  } else if (several &&
             settlement.commissionsOfRows.value() != settlement.sums.commissions.value()) {
    remarks.push_back("Sus filas suman " + texts_.amount(settlement.commissionsOfRows.value()) +
                      ". Una factura de varias liquidaciones del día ocupa una sola fila; un "
                      "albarán sin factura, ninguna.");
  }
  if (settlement.changed)
    remarks.push_back(changedSinceSettled(texts_.amount(settlement.sums.commissions.value())));
  return remarks;
}

std::vector<QString> SettlementListReport::remarksOn(const ListedDay& day) const {
  const bool known = day.settlements.size() > 1 || day.settlements.front().found;
  if (!known || day.commissionsOfRows.value() == day.sums.commissions.value()) return {};
  return {"Las filas suman " + texts_.amount(day.commissionsOfRows.value()) +
          ": hay albaranes sin factura o sin cliente, o algo ha cambiado desde la búsqueda."};
}

double SettlementListReport::closing(const ListedDay& day,
                                     const ListedSettlement& settlement) const {
  return (settlement.found ? kSettlementTotal : 0) +
         static_cast<double>(remarksOn(day, settlement).size()) * kRemark;
}

double SettlementListReport::closing(const ListedDay& day) const {
  return (day.settlements.size() > 1 ? kDayTotal : 0) +
         static_cast<double>(remarksOn(day).size()) * kRemark;
}

void SettlementListReport::writeCaptions(PageFlow& flow) const {
  flow.line(kCaptions, [](Canvas& canvas, double y) { canvas.captions(y, kCaptions, kInvoices); });
}

void SettlementListReport::writeAgentHeading(PageFlow& flow, const ListedAgent& agent,
                                             const char* continued) const {
  flow.line(kAgent, [&](Canvas& canvas, double y) {
    const auto text = [&](std::size_t column) {
      return texts_.text(list_.cell(agent.firstRow, column));
    };
    const ListColumns& columns = list_.columns();
    const QString taxNumber = text(columns.agentTaxNumber);
    canvas.text(QRectF(0, y, kAgentName, kAgent), Face::Heading,
                text(columns.agent) + "  " + text(columns.agentName));
    canvas.text(QRectF(kAgentName, y, kPageWidth - kAgentName, kAgent), Face::Text,
                (taxNumber.isEmpty() ? "" : "NIF " + taxNumber) + continued, Align::Right);
  });
}

void SettlementListReport::writeSettlementHeading(PageFlow& flow, const ListedDay& day,
                                                  const ListedSettlement& settlement,
                                                  const char* continued) const {
  flow.line(kSettlement, [&](Canvas& canvas, double y) {
    canvas.text(
        wholeLine(y, kSettlement), Face::Strong,
        "Liquidación " + QString::number(settlement.number) + " · " + dateOf(day) + continued);
  });
}

void SettlementListReport::writeInvoice(PageFlow& flow, std::uint32_t row) const {
  flow.line(kRow, [&](Canvas& canvas, double y) {
    const auto cell = [&](std::size_t column) -> const ado::Variant& {
      return list_.cell(row, column);
    };
    const ListColumns& columns = list_.columns();
    const QString cells[] = {texts_.text(cell(columns.invoice)),
                             texts_.date(cell(columns.invoiceDate)),
                             texts_.text(cell(columns.customerCode)),
                             texts_.text(cell(columns.customerName)),
                             texts_.amount(inCents(cell(columns.invoiceAmount))),
                             texts_.percent(cell(columns.percent)),
                             texts_.amount(inCents(cell(columns.commission)))};
    canvas.cells(y, kRow, Face::Text, kInvoices, cells);
    canvas.rule(y + kRow, Ink::Band);
  });
}

void SettlementListReport::writeSums(PageFlow& flow, double height, const QString& of,
                                     const SettlementSums& sums) const {
  flow.line(height, [&](Canvas& canvas, double y) {
    const QString texts[] = {of,
                             texts_.amount(sums.base.value()),
                             texts_.amount(sums.vat.value()),
                             texts_.amount(sums.withholding.value()),
                             texts_.amount(sums.total.value()),
                             texts_.amount(sums.commissions.value())};
    if (height == kGrandTotal) canvas.band(wholeLine(y, height));
    canvas.rule(y, height < kAgentTotal ? Ink::Rule : Ink::Black);
    canvas.labelledCells(y, height, Face::NoteStrong, kSums, texts);
  });
}

void SettlementListReport::writeRemarks(PageFlow& flow, const std::vector<QString>& remarks) const {
  for (const QString& remark : remarks) {
    flow.line(kRemark, [&](Canvas& canvas, double y) {
      canvas.text(wholeLine(y, kRemark), Face::Note, remark, Align::Right, Ink::Grey);
    });
  }
}

QString SettlementListReport::dateOf(const ListedDay& day) const {
  return texts_.date(day.date, "sin fecha");
}

}  // namespace korvantes::office
