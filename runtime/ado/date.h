#pragma once

#include <compare>
#include <optional>
#include <string>
#include <string_view>

namespace korvantes::ado {

/// A day of the Gregorian calendar, years 1 to 9999.
struct Date {
  int year = 1;
  int month = 1;
  int day = 1;

  friend auto operator<=>(const Date&, const Date&) = default;

  /// Empty if there is no such day (31/02/2026).
  static std::optional<Date> make(int year, int month, int day);
  /// Reads "2026-02-28" exactly.
  static std::optional<Date> parseIso(std::string_view text);
  /// Reads dates as statements and screens write them: dd/mm/yyyy, one or two digits for day and
  /// month, four for the year. Trailing blanks are allowed.
  static std::optional<Date> parseDayFirst(std::string_view text);

  /// "2026-02-28".
  std::string iso() const;
  /// "28/02/2026".
  std::string dayFirst() const;

  /// Days since 01/01/1970; negative before.
  long serial() const;
  static Date fromSerial(long days);
};

/// A local date and time.
struct Moment {
  Date date;
  int secondsOfDay = 0;

  friend auto operator<=>(const Moment&, const Moment&) = default;
};

}  // namespace korvantes::ado
