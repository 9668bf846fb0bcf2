#pragma once

#include <string>
#include <string_view>

namespace korvantes::office {

/// How a sheet shows the numbers or dates of a column.
struct CellFormat {
  std::string code;  ///< as a workbook stores it; empty: as it comes
  int places = 0;    ///< decimals
  bool grouped = false;
};

/// From a mask of numbers as screen::Format takes it, "##,##0.00 ". The blank behind stays.
CellFormat numberFormat(std::string_view mask);
/// Thousands apart, so many decimals; a plain whole number without any.
CellFormat amountFormat(int places);
/// From a mask of dates; dd/mm/yyyy where it is none.
CellFormat dateFormat(std::string_view mask = {});

}  // namespace korvantes::office
