#include "office/sheet/workbook_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <vector>

#include "office/sheet/exact_sum.h"
#include "office/sheet/sheet_text.h"
#include "office/sheet/workbook.h"
#include "runtime/ado/utf8.h"
#include "runtime/screen/conversions.h"

namespace korvantes::office {

namespace {

using screen::Alignment;
using Kind = ado::Variant::Kind;

constexpr const char* kAuthor = "KORVANTES";
constexpr const char* kSheetName = "Listado";
constexpr lxw_row_t kTitleRow = 0, kHeadingRow = 2, kFirstRow = 3;
constexpr lxw_color_t kHeadingColor = 0xE4DDC4;

lxw_col_t columnNumber(std::size_t column) {
  return static_cast<lxw_col_t>(column);
}

std::string withoutTrailingBlanks(const std::string& text) {
  return text.substr(0, text.find_last_not_of(' ') + 1);
}

/// Writes one table into a new workbook, from top to bottom: rows are not kept in memory.
class TableWriter {
 public:
  TableWriter(Workbook& workbook, const SheetTable& table, const std::string& title)
      : workbook_(workbook),
        sheet_(workbook.sheet()),
        table_(table),
        title_(cellText(title)),
        columns_(table.columns().size()) {}

  void write() {
    describe();
    makeFormats();
    setUpPages();
    writeTitle();
    writeHeading();
    setUpFilter();
    for (std::size_t row = 0; row < table_.rows(); ++row) writeRow(row);
    writeTotals();
    setWidths();
    workbook_.close();
  }

 private:
  /// A column's formats, and what is found out while its rows are written.
  struct Column {
    lxw_format* heading = nullptr;
    lxw_format* cell = nullptr;
    lxw_format* total = nullptr;
    ExactSum sum, tickedSum;
    double largest = 0;
    bool negative = false;
    bool dates = false;
  };

  const SheetColumn& described(std::size_t column) const { return table_.columns()[column]; }
  lxw_row_t lastRow() const { return kFirstRow + static_cast<lxw_row_t>(table_.rows()) - 1; }

  void describe() const;
  void makeFormats();
  lxw_format* aligned(const SheetColumn& column) const;
  void setUpPages() const;
  void writeTitle() const;
  void writeHeading() const;
  void setUpFilter() const;
  void writeRow(std::size_t row);
  void writeCell(lxw_row_t row, std::size_t column, const ado::Variant& value, bool ticked);
  void writeNumber(lxw_row_t row, std::size_t column, const ado::Variant& value, bool ticked);
  void writeText(lxw_row_t row, std::size_t column, const std::string& text,
                 lxw_format* format) const;
  void writeTotals();
  void writeTotalRow(lxw_row_t row, const char* caption, bool ticked) const;
  std::string range(std::size_t column) const;
  void setWidths() const;

  Workbook& workbook_;
  lxw_worksheet* sheet_;
  const SheetTable& table_;
  std::string title_;
  std::vector<Column> columns_;
  lxw_format* totalCaption_ = nullptr;
};

void TableWriter::describe() const {
  constexpr std::size_t kLongestProperty = 255;
  std::string title(ado::firstCharacters(title_, kLongestProperty));
  std::string author = kAuthor;
  lxw_doc_properties properties{};
  properties.title = title.data();
  properties.author = author.data();
  properties.company = author.data();
  ::workbook_set_properties(workbook_.book(), &properties);
}

lxw_format* TableWriter::aligned(const SheetColumn& column) const {
  lxw_format* format = workbook_.newFormat();
  // On a screen numbers are aligned left by default; in a sheet they line up.
  if (column.alignment == Alignment::Center) {
    ::format_set_align(format, LXW_ALIGN_CENTER);
  } else if (column.kind == SheetColumn::Kind::Number) {
    ::format_set_align(format, LXW_ALIGN_RIGHT);
  } else if (column.alignment == Alignment::Right) {
    ::format_set_align(format, LXW_ALIGN_RIGHT);
    ::format_set_indent(format, 1);  // or it touches the text of the next column
  } else {
    ::format_set_align(format, LXW_ALIGN_LEFT);
  }
  return format;
}

void TableWriter::makeFormats() {
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const SheetColumn& column = described(i);
    columns_[i] = {aligned(column), aligned(column), aligned(column), {}, {}, 0, false, false};
    if (!column.format.code.empty()) {
      ::format_set_num_format(columns_[i].cell, column.format.code.c_str());
      ::format_set_num_format(columns_[i].total, column.format.code.c_str());
    }
    lxw_format* heading = columns_[i].heading;
    ::format_set_bold(heading);
    ::format_set_text_wrap(heading);
    ::format_set_align(heading, LXW_ALIGN_VERTICAL_CENTER);
    ::format_set_bg_color(heading, kHeadingColor);
    ::format_set_border(heading, LXW_BORDER_THIN);
    ::format_set_bold(columns_[i].total);
    ::format_set_top(columns_[i].total, LXW_BORDER_THIN);
  }
  // A caption longer than its column runs on over the empty ones after it.
  totalCaption_ = workbook_.newFormat();
  ::format_set_bold(totalCaption_);
  ::format_set_top(totalCaption_, LXW_BORDER_THIN);
}

void TableWriter::setUpPages() const {
  constexpr std::uint8_t kA4 = 9;
  ::worksheet_set_landscape(sheet_);
  ::worksheet_set_paper(sheet_, kA4);
  ::worksheet_fit_to_pages(sheet_, 1, 0);
  ::worksheet_repeat_rows(sheet_, kTitleRow, kHeadingRow);
  ::worksheet_set_footer(sheet_, "&LKORVANTES&RPágina &P de &N");
  ::worksheet_freeze_panes(sheet_, kFirstRow, 0);
}

void TableWriter::writeTitle() const {
  constexpr double kTitleSize = 14;
  lxw_format* format = workbook_.newFormat();
  ::format_set_bold(format);
  ::format_set_font_size(format, kTitleSize);
  ::worksheet_write_string(sheet_, kTitleRow, 0, title_.c_str(), format);
}

void TableWriter::writeHeading() const {
  for (std::size_t column = 0; column < columns_.size(); ++column)
    writeText(kHeadingRow, column, described(column).caption, columns_[column].heading);
}

/// Before the rows: the library rejects it once they have left memory.
void TableWriter::setUpFilter() const {
  if (table_.rows() == 0) return;
  ::worksheet_autofilter(sheet_, kHeadingRow, 0, lastRow(), columnNumber(columns_.size() - 1));
  // Document numbers are text on purpose: suppress the warning about them.
  std::string texts;
  for (std::size_t i = 0; i < columns_.size(); ++i)
    if (described(i).kind == SheetColumn::Kind::Text)
      texts += (texts.empty() ? "" : " ") + range(i);
  if (!texts.empty())
    ::worksheet_ignore_errors(sheet_, LXW_IGNORE_NUMBER_STORED_AS_TEXT, texts.c_str());
}

void TableWriter::writeRow(std::size_t row) {
  const auto tickColumn = table_.tickColumn();
  const bool ticked = tickColumn && table_.cell(row, *tickColumn) == SheetTable::kTicked;
  for (std::size_t column = 0; column < columns_.size(); ++column)
    writeCell(kFirstRow + static_cast<lxw_row_t>(row), column, table_.cell(row, column), ticked);
  workbook_.requireWritten();
}

void TableWriter::writeCell(lxw_row_t row, std::size_t column, const ado::Variant& value,
                            bool ticked) {
  // From this day on a sheet counts days from the end of 1899; its calendar before that has a day
  // that never existed.
  constexpr ado::Date kFirstDay{1900, 3, 1};
  constexpr long kDaysTo1970 = 25569;
  lxw_format* format = columns_[column].cell;
  switch (value.kind()) {
    case Kind::Null:
    case Kind::Bytes:
      return;
    case Kind::Boolean:
      ::worksheet_write_boolean(sheet_, row, columnNumber(column), value.boolean() ? 1 : 0, format);
      return;
    case Kind::Whole:
    case Kind::Double:
    case Kind::Decimal:
      return writeNumber(row, column, value, ticked);
    case Kind::Date:
      columns_[column].dates = true;
      if (value.date() < kFirstDay) return writeText(row, column, value.date().dayFirst(), format);
      ::worksheet_write_number(sheet_, row, columnNumber(column),
                               static_cast<double>(value.date().serial() + kDaysTo1970), format);
      return;
    case Kind::Text:
      // Fixed-length fields are padded with blanks, which a search in a sheet does not expect.
      return writeText(row, column, withoutTrailingBlanks(value.text()), format);
  }
}

void TableWriter::writeNumber(lxw_row_t row, std::size_t column, const ado::Variant& value,
                              bool ticked) {
  // A sheet keeps 15 digits: a longer code is kept as a text, which sums ignore.
  constexpr std::int64_t kFifteenDigits = 1'000'000'000'000'000;
  Column& found = columns_[column];
  const double number = value.asDouble();
  const bool tooLong =
      !std::isfinite(number) ||
      (value.kind() != Kind::Double && std::fabs(number) >= static_cast<double>(kFifteenDigits));
  if (tooLong) {
    writeText(row, column, std::isfinite(number) ? screen::CStr(value) : "no es un número",
              found.cell);
    return;
  }
  ::worksheet_write_number(sheet_, row, columnNumber(column), number, found.cell);
  found.largest = std::max(found.largest, std::fabs(number));
  found.negative = found.negative || number < 0;
  if (!described(column).totalled) return;
  for (ExactSum* sum : {&found.sum, ticked ? &found.tickedSum : nullptr}) {
    if (sum == nullptr) continue;
    if (value.kind() == Kind::Decimal)
      sum->add(value.decimal());
    else
      sum->add(number);
  }
}

void TableWriter::writeText(lxw_row_t row, std::size_t column, const std::string& text,
                            lxw_format* format) const {
  ::worksheet_write_string(sheet_, row, columnNumber(column), cellText(text).c_str(), format);
}

void TableWriter::writeTotals() {
  const bool any = std::any_of(table_.columns().begin(), table_.columns().end(),
                               [](const SheetColumn& column) { return column.totalled; });
  if (table_.rows() == 0 || !any) return;
  // The empty row keeps the sums out of the filter, which grows over rows that touch it.
  lxw_row_t row = lastRow() + 2;
  writeTotalRow(row, "Total", false);
  if (table_.tickColumn()) writeTotalRow(row + 1, "Total marcados", true);
}

void TableWriter::writeTotalRow(lxw_row_t row, const char* caption, bool ticked) const {
  bool captioned = false;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const Column& column = columns_[i];
    if (described(i).totalled) {
      const std::string formula = ticked ? "=SUMIF(" + range(*table_.tickColumn()) + ",\"" +
                                               SheetTable::kTicked + "\"," + range(i) + ")"
                                         : "=SUBTOTAL(109," + range(i) + ")";
      ::worksheet_write_formula_num(sheet_, row, columnNumber(i), formula.c_str(), column.total,
                                    (ticked ? column.tickedSum : column.sum).value());
    } else if (captioned) {
      ::worksheet_write_blank(sheet_, row, columnNumber(i), column.total);
    } else {
      writeText(row, i, caption, totalCaption_);
      captioned = true;
    }
  }
}

std::string TableWriter::range(std::size_t column) const {
  std::array<char, LXW_MAX_CELL_RANGE_LENGTH> text{};
  ::lxw_rowcol_to_range(text.data(), kFirstRow, columnNumber(column), lastRow(),
                        columnNumber(column));
  return text.data();
}

void TableWriter::setWidths() const {
  // At 96 pixels an inch, 15 twips are a pixel. Digits in the default font are 7 pixels wide, bold
  // ones a little more; a number that does not fit shows as #####.
  constexpr double kTwips = 15, kFigure = 7.6, kMargin = 10, kFilterButton = 20;
  constexpr double kWidestHeading = 260, kWidest = 1780;
  constexpr std::size_t kDateFigures = 10;
  for (std::size_t i = 0; i < columns_.size(); ++i) {
    const SheetColumn& column = described(i);
    const Column& found = columns_[i];
    std::size_t figures = found.dates ? kDateFigures : 0;
    const double largest = std::max(found.largest, std::fabs(found.sum.value()));
    if (column.kind == SheetColumn::Kind::Number) {
      const auto whole = static_cast<std::size_t>(std::log10(std::max(largest, 1.0))) + 1;
      const int places = column.format.places;
      figures = whole + (column.format.grouped ? (whole - 1) / 3 : 0) + (found.negative ? 1 : 0) +
                (places > 0 ? static_cast<std::size_t>(places) + 1 : 0);
    }
    const auto heading = static_cast<double>(ado::characterCount(column.caption)) * kFigure +
                         kMargin + kFilterButton;
    const double points = std::max({column.width / kTwips, std::min(heading, kWidestHeading),
                                    static_cast<double>(figures) * kFigure + kMargin});
    ::worksheet_set_column_pixels(sheet_, columnNumber(i), columnNumber(i),
                                  static_cast<std::uint32_t>(std::min(points, kWidest)), nullptr);
  }
}

}  // namespace

bool isPercentage(const std::string& caption) {
  std::string lower = caption;
  std::transform(lower.begin(), lower.end(), lower.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c; });
  return lower.find('%') != lower.npos || lower.find("porcent") != lower.npos;
}

void writeWorkbook(const SheetTable& table, const std::string& title,
                   const std::filesystem::path& file, const std::filesystem::path& temporary,
                   const std::filesystem::path& place) {
  Workbook workbook(file, temporary, place, kSheetName);
  TableWriter(workbook, table, title).write();
}

}  // namespace korvantes::office
