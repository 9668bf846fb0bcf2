#pragma once

#include <QString>
#include <optional>
#include <string>

#include "runtime/ado/decimal.h"
#include "runtime/ado/variant.h"
#include "runtime/screen/regional.h"

namespace korvantes::office {

/// Values as a report shows them, under the regional settings of the desktop that gathered it.
class ReportTexts {
 public:
  explicit ReportTexts(screen::Regional regional) : regional_(std::move(regional)) {}

  /// "1.234,56"; empty for an empty value.
  QString amount(const std::optional<ado::Decimal>& amount) const;
  /// "7,50"; empty for Null.
  QString percent(const ado::Variant& percent) const;
  /// "24/11/2026"; `instead` for Null.
  QString date(const ado::Variant& date, const char* instead = "") const;
  /// "A/123"; the number alone without a series, empty without a number.
  QString document(const ado::Variant& series, const ado::Variant& number) const;
  /// A text or a number, on one line.
  QString text(const ado::Variant& value) const;

 private:
  screen::Regional regional_;
};

/// Says that the commissions of a settlement's notes no longer add up to its stored base.
QString changedSinceSettled(const QString& commissions);

/// "1 albarán", "2000 albaranes".
QString counted(std::size_t count, const char* one, const char* many);

}  // namespace korvantes::office
