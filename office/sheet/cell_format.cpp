#include "office/sheet/cell_format.h"

#include <algorithm>

namespace korvantes::office {

namespace {

constexpr std::string_view kPlaces = "0#.,";

/// Quoted, because a % or a letter would have a special meaning.
std::string literal(std::string_view text) {
  std::string plain(text);
  plain.erase(std::remove(plain.begin(), plain.end(), '"'), plain.end());
  return plain.empty() ? plain : '"' + plain + '"';
}

/// "#,##0" or "0": at least so many digits.
std::string wholePart(std::size_t leastDigits, bool grouped) {
  std::string code(leastDigits, '0');
  const std::size_t length = std::max<std::size_t>(leastDigits, grouped ? 4 : 1);
  code.insert(0, length - leastDigits, '#');
  for (std::size_t left = code.size(); grouped && left > 3;) code.insert(left -= 3, 1, ',');
  return code;
}

}  // namespace

CellFormat numberFormat(std::string_view mask) {
  const auto first = mask.find_first_of(kPlaces);
  if (first == std::string_view::npos) return {};
  const auto end = mask.find_last_of(kPlaces) + 1;
  const std::string_view places = mask.substr(first, end - first);
  const auto point = std::min(places.find('.'), places.size());

  CellFormat format;
  const std::string_view whole = places.substr(0, point);
  format.grouped = whole.find(',') != std::string_view::npos;
  const auto leastDigits = static_cast<std::size_t>(std::count(whole.begin(), whole.end(), '0'));
  format.code = literal(mask.substr(0, first)) + wholePart(leastDigits, format.grouped);
  for (const char place : places.substr(point)) {
    if (place != '0' && place != '#') continue;
    format.code += format.places++ == 0 ? std::string(".") + place : std::string(1, place);
  }
  format.code += literal(mask.substr(end));
  return format;
}

CellFormat amountFormat(int places) {
  if (places <= 0) return {"0", 0, false};
  return {"#,##0." + std::string(static_cast<std::size_t>(places), '0'), places, true};
}

CellFormat dateFormat(std::string_view mask) {
  const bool dates =
      mask.find_first_not_of("dmyDMY/-. ") == std::string_view::npos && !mask.empty();
  return {dates ? std::string(mask) : "dd/mm/yyyy", 0, false};
}

}  // namespace korvantes::office
