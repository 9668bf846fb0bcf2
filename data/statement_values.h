#pragma once

#include <string>
#include <string_view>

namespace korvantes::data {

// What a statement takes as the text that it is. Both give the text back unchanged, or throw
// ado::ConversionError if it is anything else.

/// Digits of a code, without a sign.
std::string digitsOf(std::string_view text);

/// A date that exists, dd/mm/yyyy or another form that a date field takes.
std::string dateOf(std::string_view text);

}  // namespace korvantes::data
