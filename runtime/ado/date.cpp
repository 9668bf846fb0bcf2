#include "runtime/ado/date.h"

#include <chrono>

#include "runtime/ado/characters.h"

namespace korvantes::ado {

namespace {

/// Takes `shortest` to `longest` digits off the front of a text.
std::optional<int> takeNumber(std::string_view& text, std::size_t shortest, std::size_t longest) {
  int number = 0;
  std::size_t digits = 0;
  while (digits < text.size() && isDigit(text[digits])) {
    if (digits == longest) return std::nullopt;
    number = number * 10 + (text[digits++] - '0');
  }
  if (digits < shortest) return std::nullopt;
  text.remove_prefix(digits);
  return number;
}

bool takeCharacter(std::string_view& text, char c) {
  if (text.empty() || text.front() != c) return false;
  text.remove_prefix(1);
  return true;
}

std::string padded(int number, std::size_t width) {
  std::string digits = std::to_string(number);
  if (digits.size() < width) digits.insert(0, width - digits.size(), '0');
  return digits;
}

std::chrono::year_month_day calendarDay(const Date& date) {
  return {std::chrono::year(date.year), std::chrono::month(static_cast<unsigned>(date.month)),
          std::chrono::day(static_cast<unsigned>(date.day))};
}

}  // namespace

std::optional<Date> Date::make(int year, int month, int day) {
  if (year < 1 || year > 9999 || month < 1 || month > 12 || day < 1) return std::nullopt;
  const Date date{year, month, day};
  if (!calendarDay(date).ok()) return std::nullopt;
  return date;
}

std::optional<Date> Date::parseIso(std::string_view text) {
  const auto year = takeNumber(text, 4, 4);
  if (!year || !takeCharacter(text, '-')) return std::nullopt;
  const auto month = takeNumber(text, 2, 2);
  if (!month || !takeCharacter(text, '-')) return std::nullopt;
  const auto day = takeNumber(text, 2, 2);
  if (!day || !text.empty()) return std::nullopt;
  return make(*year, *month, *day);
}

std::optional<Date> Date::parseDayFirst(std::string_view text) {
  const auto day = takeNumber(text, 1, 2);
  if (!day || !takeCharacter(text, '/')) return std::nullopt;
  const auto month = takeNumber(text, 1, 2);
  if (!month || !takeCharacter(text, '/')) return std::nullopt;
  const auto year = takeNumber(text, 4, 4);
  if (!year || text.find_first_not_of(' ') != std::string_view::npos) return std::nullopt;
  return make(*year, *month, *day);
}

std::string Date::iso() const {
  return padded(year, 4) + '-' + padded(month, 2) + '-' + padded(day, 2);
}

std::string Date::dayFirst() const {
  return padded(day, 2) + '/' + padded(month, 2) + '/' + padded(year, 4);
}

long Date::serial() const {
  return static_cast<long>(std::chrono::sys_days(calendarDay(*this)).time_since_epoch().count());
}

Date Date::fromSerial(long days) {
  const std::chrono::year_month_day day(
      std::chrono::sys_days(std::chrono::days(static_cast<int>(days))));
  return {static_cast<int>(day.year()), static_cast<int>(static_cast<unsigned>(day.month())),
          static_cast<int>(static_cast<unsigned>(day.day()))};
}

}  // namespace korvantes::ado
