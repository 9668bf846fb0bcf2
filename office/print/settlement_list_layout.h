#pragma once

#include <cstddef>

#include "office/print/canvas.h"

namespace korvantes::office::list_layout {

/// Millimetres. The widths of a table add up to kPageWidth.
constexpr Column kInvoices[] = {
    {"Factura", 30, Align::Left},   {"Fecha", 19, Align::Left},    {"Código", 15, Align::Right},
    {"Cliente", 57, Align::Left},   {"Importe", 23, Align::Right}, {"% Com.", 13, Align::Right},
    {"Comisión", 23, Align::Right},
};
/// Subtotals: each amount after its name in small type.
constexpr Column kSums[] = {{"", 41, Align::Left},       {"Base", 28, Align::Right},
                            {"IVA", 26, Align::Right},   {"Retención", 33, Align::Right},
                            {"Total", 29, Align::Right}, {"", 23, Align::Right}};

constexpr double kTitle = 9, kLimits = 5.5, kCaptions = 5.5, kContinuation = 5.5;
constexpr double kAgent = 7, kSettlement = 5.6, kRow = 4.7;
constexpr double kSettlementTotal = 6.2, kDayTotal = 6.4, kAgentTotal = 7, kGrandTotal = 8;
constexpr double kRemark = 4.4;
/// Invoices that a settlement's heading keeps below it on its page.
constexpr std::size_t kOpeningRows = 2;
constexpr double kGap = 3, kAgentName = 125;

}  // namespace korvantes::office::list_layout
