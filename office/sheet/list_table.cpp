#include "office/sheet/list_table.h"

#include <algorithm>
#include <cstdlib>

#include "runtime/ado/characters.h"
#include "runtime/screen/conversions.h"

namespace korvantes::office {

namespace {

constexpr int kTickWidth = 1100;

std::optional<ado::Date> dateIn(std::string_view text) {
  constexpr std::size_t kLength = 10;
  if (text.size() != kLength) return std::nullopt;
  if (const auto date = ado::Date::parseDayFirst(text)) return date;
  return ado::Date::parseIso(text);
}

}  // namespace

ListTable::ListTable(const screen::ListView& list, screen::Regional regional)
    : list_(list), regional_(std::move(regional)) {
  columns_.push_back(
      {"Marcado", kTickWidth, screen::Alignment::Center, SheetColumn::Kind::Text, {}, false});
  sources_.push_back(0);
  for (std::size_t source = 0; source < list_.ColumnHeaders.size(); ++source) {
    if (list_.ColumnHeaders[source].Width <= 0) continue;
    columns_.push_back(described(source));
    sources_.push_back(source);
  }
}

SheetColumn ListTable::described(std::size_t source) const {
  const screen::ListView::ColumnHeader& header = list_.ColumnHeaders[source];
  SheetColumn column{header.Text, header.Width, header.TextAlignment, SheetColumn::Kind::Text,
                     {},          false};
  if (allDates(source)) {
    column.kind = SheetColumn::Kind::Date;
    column.format = dateFormat();
  } else if (header.TextAlignment == screen::Alignment::Right) {
    if (const std::optional<int> decimals = decimalsOf(source)) {
      column.kind = SheetColumn::Kind::Number;
      column.format = amountFormat(*decimals);
      // Whole numbers are codes or counts.
      column.totalled = *decimals > 0 && !isPercentage(header.Text);
    }
  }
  return column;
}

std::optional<int> ListTable::decimalsOf(std::size_t source) const {
  std::optional<int> most;
  for (std::size_t row = 0; row < list_.Count(); ++row) {
    const std::string& text = list_.item(row).cell(source);
    if (text.empty()) continue;
    const std::optional<ado::Decimal> number = numberIn(text);
    if (!number) return std::nullopt;
    most = std::max(most.value_or(0), number->scale());
  }
  return most;
}

bool ListTable::allDates(std::size_t source) const {
  bool some = false;
  for (std::size_t row = 0; row < list_.Count(); ++row) {
    const std::string& text = list_.item(row).cell(source);
    if (text.empty()) continue;
    if (!dateIn(text)) return false;
    some = true;
  }
  return some;
}

std::optional<ado::Decimal> ListTable::numberIn(std::string_view text) const {
  constexpr std::int64_t kFifteenDigits = 1'000'000'000'000'000;
  if (!screen::IsNumeric(text, regional_)) return std::nullopt;
  std::string plain;
  for (const char c : text) {
    if (c == regional_.decimalSeparator)
      plain += '.';
    else if (ado::isDigit(c) || c == '-')
      plain += c;
    else if (c == 'e' || c == 'E')
      return std::nullopt;
  }
  const auto first = plain.find_first_not_of('-');
  if (plain[first] == '0' && first + 1 < plain.size() && ado::isDigit(plain[first + 1]))
    return std::nullopt;
  const auto number = ado::Decimal::parse(plain);
  if (!number || std::llabs(number->units()) >= kFifteenDigits) return std::nullopt;
  return number;
}

ado::Variant ListTable::cell(std::size_t row, std::size_t column) const {
  const screen::ListView::ListItem& item = list_.item(row);
  if (column == tickColumn()) return item.Checked ? kTicked : kUnticked;
  const std::string& text = item.cell(sources_[column]);
  if (text.empty()) return {};
  switch (columns_[column].kind) {
    case SheetColumn::Kind::Number:
      if (const auto number = numberIn(text)) return *number;
      break;
    case SheetColumn::Kind::Date:
      if (const auto date = dateIn(text)) return *date;
      break;
    case SheetColumn::Kind::Text:
      break;
  }
  return text;
}

}  // namespace korvantes::office
