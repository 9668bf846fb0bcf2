#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "runtime/ado/variant.h"
#include "runtime/screen/regional.h"

namespace korvantes::screen {

/// Conversions between values and texts on screen. Without regional settings, those of the current
/// desktop apply.

/// Those of the current desktop, or the machine's if there is none.
const Regional& currentRegional();

/// True for a day that exists: dd/mm/yyyy, also one-digit days and months, two-digit years (00 to
/// 29 are 2000 to 2029, 30 to 99 are 1930 to 1999), separated by /, - or . Surrounding blanks
/// are allowed; digits alone are not a date.
bool IsDate(std::string_view text);
/// The date that IsDate accepts; empty otherwise.
std::optional<ado::Date> toDate(std::string_view text);

/// True for what toNumber accepts. The empty text is not a number.
bool IsNumeric(std::string_view text, const Regional& regional = currentRegional());
/// Reads a number: sign, digits, thousands separators before each group of three digits ahead of
/// the decimal separator, exponent; surrounding blanks are allowed. Empty for any other text: a
/// separator elsewhere ("12.5", "0.125" in Spanish) is refused rather than read as a multiple.
std::optional<double> parseNumber(std::string_view text,
                                  const Regional& regional = currentRegional());
/// The same; throws ado::ConversionError ("«abc» no es un número").
double CDbl(std::string_view text, const Regional& regional = currentRegional());
/// The same number, exact: every digit of the text counts. Throws ado::ConversionError if the
/// text is not a number or does not fit.
ado::Decimal CDec(std::string_view text, const Regional& regional = currentRegional());
/// Whole number of 32 bits, fractions half to even; throws ado::ConversionError if the text is not
/// a number or does not fit.
int CLng(std::string_view text, const Regional& regional = currentRegional());
/// The number that a text begins with, with a decimal point whatever the settings; 0 if there is
/// none.
double Val(std::string_view text);

/// The general form: at most 15 significant digits, no trailing zeros, no thousands separator, no
/// negative zero; from 1E+15 on, and for very small values, with an exponent.
std::string CStr(double number, const Regional& regional = currentRegional());
/// The plain text of a value: numbers in the general form (a decimal of 100.0000 is "100"), dates
/// dd/mm/yyyy, Null empty, Boolean "Verdadero" and "Falso". Bytes throw ado::ConversionError.
std::string CStr(const ado::Variant& value, const Regional& regional = currentRegional());

/// Masks: of numbers, "0.00", "000000", "##0.00", "#,###,##0.00 " (0, #, point, comma for
/// thousands, literal text before and after); of dates, "dd/mm/yyyy", "yyyy-mm-dd". Numbers round
/// half away from zero at 15 significant digits, never to a negative zero; an exact decimal is
/// formatted exactly; more digits than the mask are never cut before the point. Null gives an empty
/// text, a text is returned unchanged.
std::string Format(const ado::Variant& value, std::string_view mask,
                   const Regional& regional = currentRegional());

}  // namespace korvantes::screen
