#pragma once

#include "office/print/canvas.h"

namespace korvantes::office::settlement_layout {

/// Millimetres. The widths of a table add up to kPageWidth.
constexpr Column kNotes[] = {
    {"Factura", 24, Align::Left},   {"Fecha", 18, Align::Left},    {"Albarán", 24, Align::Left},
    {"Cliente", 57, Align::Left},   {"Importe", 22, Align::Right}, {"% Com.", 13, Align::Right},
    {"Comisión", 22, Align::Right},
};
/// Subtotals: what they add up, before the columns of amounts.
constexpr Column kSubtotals[] = {
    {"", 123, Align::Left}, {"", 22, Align::Right}, {"", 13, Align::Right}, {"", 22, Align::Right}};

constexpr double kTitle = 10, kContinuation = 6, kCaptions = 5.5;
constexpr double kRow = 4.7, kSubtotal = 5.2, kGrandTotal = 6, kRemark = 4.4, kFact = 5;
constexpr double kGap = 4, kSmallGap = 1.5, kContinuedWidth = 25;

/// The heading: the agent on the left, data of the settlement on the right.
constexpr double kAgentLabel = 16, kAgentText = 92, kFactLabel = 28, kFactText = 44;

/// The amounts at the end.
constexpr double kAmountsLeft = 100, kAmountLabel = 50, kAmount = 30, kAmountLine = 5.6,
                 kTotalLine = 7;

}  // namespace korvantes::office::settlement_layout
