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
  if (list_.agents.empty()) {
    flow.line(kAgent, [](Canvas& canvas, double y) {
      canvas.text(wholeLine(y, kAgent), Face::Text, kNoData);
    });
    return;
  }

  Open open;
  flow.atTop([&] {
    writeCaptions(flow);
    if (open.agent != nullptr) writeAgentHeading(flow, *open.agent, kContinued);
    if (open.settlement != nullptr) writeSettlementHeading(flow, *open.settlement, kContinued);
  });
  for (const ListedAgent& agent : list_.agents) writeAgent(flow, agent, open);
  writeSums(flow, kGrandTotal,
            "Total de " + counted(list_.settlements, "liquidación", "liquidaciones"), list_.sums);
}

void SettlementListReport::writeAgent(PageFlow& flow, const ListedAgent& agent, Open& open) const {
  const bool lastAgent = &agent == &list_.agents.back();
  for (const ListedSettlement& settlement : agent.settlements) {
    const bool first = &settlement == &agent.settlements.front();
    const bool last = &settlement == &agent.settlements.back();
    // What comes below the settlement's last row and must not stand alone at the top of a page.
    const double sums =
        kSettlementTotal + (last ? kAgentTotal : 0) + (last && lastAgent ? kGrandTotal : 0);
    const std::size_t opening = std::min(settlement.rows.size(), kOpeningRows);
    flow.keep((first ? kAgent : 0) + kSettlement + static_cast<double>(opening) * kRow +
              (opening == settlement.rows.size() ? sums : 0));
    if (first) writeAgentHeading(flow, agent, "");
    open.agent = &agent;
    writeSettlementHeading(flow, settlement, "");
    open.settlement = &settlement;
    for (const std::uint32_t row : settlement.rows) {
      if (row == settlement.rows.back()) flow.keep(kRow + sums);
      writeInvoice(flow, row);
    }
    open.settlement = nullptr;
    writeSums(flow, kSettlementTotal, "Total liquidación " + numberOf(settlement), settlement.sums);
  }
  open.agent = nullptr;
  const ado::Variant& code =
      list_.cell(agent.settlements.front().rows.front(), list_.columns.agent);
  writeSums(flow, kAgentTotal, "Total agente " + texts_.text(code), agent.sums);
}

void SettlementListReport::writeCaptions(PageFlow& flow) const {
  flow.line(kCaptions, [](Canvas& canvas, double y) { canvas.captions(y, kCaptions, kInvoices); });
}

void SettlementListReport::writeAgentHeading(PageFlow& flow, const ListedAgent& agent,
                                             const char* continued) const {
  flow.line(kAgent, [&](Canvas& canvas, double y) {
    const std::uint32_t row = agent.settlements.front().rows.front();
    const auto text = [&](std::size_t column) { return texts_.text(list_.cell(row, column)); };
    const ListColumns& columns = list_.columns;
    const QString taxNumber = text(columns.agentTaxNumber);
    canvas.text(QRectF(0, y, kAgentName, kAgent), Face::Heading,
                text(columns.agent) + "  " + text(columns.agentName));
    canvas.text(QRectF(kAgentName, y, kPageWidth - kAgentName, kAgent), Face::Text,
                (taxNumber.isEmpty() ? "" : "NIF " + taxNumber) + continued, Align::Right);
  });
}

void SettlementListReport::writeSettlementHeading(PageFlow& flow,
                                                  const ListedSettlement& settlement,
                                                  const char* continued) const {
  flow.line(kSettlement, [&](Canvas& canvas, double y) {
    const QString date =
        texts_.date(list_.cell(settlement.rows.front(), list_.columns.settlementDate), "sin fecha");
    canvas.text(wholeLine(y, kSettlement), Face::Strong,
                "Liquidación " + numberOf(settlement) + " · " + date + continued);
  });
}

void SettlementListReport::writeInvoice(PageFlow& flow, std::uint32_t row) const {
  flow.line(kRow, [&](Canvas& canvas, double y) {
    const auto cell = [&](std::size_t column) -> const ado::Variant& {
      return list_.cell(row, column);
    };
    const ListColumns& columns = list_.columns;
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
    canvas.rule(y, height == kSettlementTotal ? Ink::Rule : Ink::Black);
    canvas.labelledCells(y, height, Face::NoteStrong, kSums, texts);
  });
}

QString SettlementListReport::numberOf(const ListedSettlement& settlement) const {
  return texts_.text(list_.cell(settlement.rows.front(), list_.columns.settlement));
}

}  // namespace korvantes::office
