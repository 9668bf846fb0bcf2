#include "office/print/report_texts.h"

#include <algorithm>

#include "runtime/screen/conversions.h"

namespace korvantes::office {

namespace {

constexpr const char* kAmount = "#,##0.00";
constexpr const char* kPercent = "##0.00";

/// A cell must not contain line breaks or tabs.
QString onOneLine(QString text) {
  const auto isControl = [](QChar letter) { return letter.unicode() < u' '; };
  std::replace_if(text.begin(), text.end(), isControl, QChar(u' '));
  return text.trimmed();
}

}  // namespace

QString ReportTexts::amount(const std::optional<ado::Decimal>& amount) const {
  if (!amount) return {};
  return QString::fromStdString(screen::Format(*amount, kAmount, regional_));
}

QString ReportTexts::percent(const ado::Variant& percent) const {
  return QString::fromStdString(screen::Format(percent, kPercent, regional_));
}

QString ReportTexts::date(const ado::Variant& date, const char* instead) const {
  if (date.isNull()) return QString::fromUtf8(instead);
  return QString::fromStdString(date.date().dayFirst());
}

QString ReportTexts::document(const ado::Variant& series, const ado::Variant& number) const {
  const QString before = text(series);
  return (before.isEmpty() || number.isNull() ? before : before + u'/') + text(number);
}

QString ReportTexts::text(const ado::Variant& value) const {
  return onOneLine(QString::fromStdString(screen::CStr(value, regional_)));
}

QString changedSinceSettled(const QString& commissions) {
  return "Las comisiones de los albaranes suman hoy " + commissions +
         ", no la base guardada: algún albarán ha cambiado después de liquidarse.";
}

QString counted(std::size_t count, const char* one, const char* many) {
  return QString("%1 %2").arg(count).arg(QString::fromUtf8(count == 1 ? one : many));
}

}  // namespace korvantes::office
