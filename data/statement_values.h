#pragma once

#include <string>
#include <string_view>

namespace korvantes::data {

// Checks for text that goes into a statement unquoted. Both return the text unchanged, or throw
// ado::ConversionError if it is anything else.

/// A code: digits without a sign.
std::string digitsOf(std::string_view text);

/// A date that exists, dd/mm/yyyy or in another form that a date field accepts.
std::string dateOf(std::string_view text);

}  // namespace korvantes::data
