#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "office/sheet/cell_format.h"
#include "runtime/ado/variant.h"
#include "runtime/screen/property.h"

namespace korvantes::office {

/// One column of a sheet.
struct SheetColumn {
  enum class Kind { Text, Number, Date };

  std::string caption;
  int width = 0;  ///< twips, on the screen
  screen::Alignment alignment = screen::Alignment::Left;
  Kind kind = Kind::Text;
  CellFormat format;
  bool totalled = false;  ///< has a total below
};

/// The data to write, read row by row without a copy.
class SheetTable {
 public:
  /// Texts of the column of ticks.
  static constexpr const char* kTicked = "Sí";
  static constexpr const char* kUnticked = "No";

  virtual ~SheetTable() = default;

  const std::vector<SheetColumn>& columns() const { return columns_; }
  virtual std::size_t rows() const = 0;
  /// Null and binary values are empty cells.
  virtual ado::Variant cell(std::size_t row, std::size_t column) const = 0;
  /// The column of ticks, if any; sums are then also given over the ticked rows only.
  virtual std::optional<std::size_t> tickColumn() const { return std::nullopt; }

 protected:
  std::vector<SheetColumn> columns_;
};

/// Whether a column holds percentages, by its caption: their sum is meaningless.
bool isPercentage(const std::string& caption);

}  // namespace korvantes::office
