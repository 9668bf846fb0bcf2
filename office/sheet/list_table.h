#pragma once

#include <optional>
#include <string_view>

#include "office/sheet/sheet_table.h"
#include "runtime/ado/decimal.h"
#include "runtime/screen/list_view.h"
#include "runtime/screen/regional.h"

namespace korvantes::office {

/// A list: first the ticks, then the visible columns, rows in the order on the screen.
///
/// The cells of a list are texts. A column aligned to the right becomes one of numbers when each
/// filled cell reads as a number of at most 15 digits without leading zeros, so that codes stay
/// what they are; a column becomes one of dates when each filled cell is a day, dd/mm/yyyy or
/// yyyy-mm-dd. All others stay texts.
class ListTable : public SheetTable {
 public:
  /// The list must outlive this object and not change meanwhile.
  ListTable(const screen::ListView& list, screen::Regional regional);

  std::size_t rows() const override { return list_.Count(); }
  ado::Variant cell(std::size_t row, std::size_t column) const override;
  std::optional<std::size_t> tickColumn() const override { return 0; }

 private:
  SheetColumn described(std::size_t source) const;
  /// Most decimals of the column's cells; empty if one of them is not a number.
  std::optional<int> decimalsOf(std::size_t source) const;
  bool allDates(std::size_t source) const;
  std::optional<ado::Decimal> numberIn(std::string_view text) const;

  const screen::ListView& list_;
  screen::Regional regional_;
  std::vector<std::size_t> sources_;  ///< column of the list, for each column of the sheet
};

}  // namespace korvantes::office
