#pragma once

#include <string>
#include <string_view>

namespace korvantes::office {

/// How a sheet shows the numbers or dates of a column.
struct CellFormat {
  std::string code;  ///< as stored in a workbook; empty: no format
  int places = 0;    ///< decimals
  bool grouped = false;
};

/// From a number mask of screen::Format, "##,##0.00 ". Trailing blanks are kept.
CellFormat numberFormat(std::string_view mask);
/// With thousands separators and this many decimals; a plain whole number for 0.
CellFormat amountFormat(int places);
/// From a date mask; dd/mm/yyyy if it is not one.
CellFormat dateFormat(std::string_view mask = {});

}  // namespace korvantes::office
