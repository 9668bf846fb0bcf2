#pragma once

#include <string_view>

namespace korvantes::ado {

/// The one order of texts, used by lists on screen and by ORDER BY and comparisons in statements.
///
/// Follows Spanish usage and the server's usual collation: letters compare without case and
/// accents, and ñ is a letter of its own after n; ties are broken by accents (a before á), never by
/// case. Trailing blanks are ignored: "ABC" equals "abc ". Other characters are ordered by code.
///
/// @return below 0, 0 or above 0, as with strcmp
int compareTexts(std::string_view a, std::string_view b);

/// Compares names of columns, controls and objects, ignoring the case of ASCII letters.
bool sameName(std::string_view a, std::string_view b);

}  // namespace korvantes::ado
