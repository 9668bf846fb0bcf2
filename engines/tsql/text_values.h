#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "engines/tsql/types.h"

namespace korvantes::tsql {

/// How numbers, dates and texts turn into one another. A failure is a Refusal without a place:
/// the caller knows where the value is, if it is in a text at all.

/// The value of a text in units of `type` (a number): digits with at most one point, surrounding
/// blanks allowed. Digits beyond the scale round half away from zero; a whole number takes no
/// point. A blank text is 0, as on the server, but an error for decimals.
std::int64_t unitsFromText(std::string_view text, const Type& type);

/// "yyyy-mm-dd" of a text dd/mm/yyyy, trailing blanks allowed, or of one that has that form
/// already.
std::string isoFromText(std::string_view text);

/// A number as the server writes it into a text type: whole numbers and decimals with all digits,
/// money with two decimals. A whole number longer than `target` becomes "*", other numbers that do
/// not fit are an error.
std::string textFromUnits(std::int64_t units, const Type& from, const Type& target);

/// The text cut to the type's length and, for char(n), padded with blanks.
std::string fixedText(std::string_view text, const Type& target);

/// The text as a column of `target` stores it: blanks beyond the length are dropped, char(n) is
/// padded. A longer text is an error that names the column.
std::string storedText(std::string_view text, const Type& target, std::string_view column);

/// LIKE: % any run, _ one character, [abc], [a-c] and [^abc] one of a set; without regard to case.
bool matchesLike(std::string_view text, std::string_view pattern);

std::string upperCase(std::string_view text);
std::string lowerCase(std::string_view text);

/// The value as an int, if it fits 32 bits.
std::optional<std::int64_t> asInt(std::int64_t value);

/// Whether the value has at most `digits` digits.
bool hasDigits(std::int64_t value, int digits);

}  // namespace korvantes::tsql
