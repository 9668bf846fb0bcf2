#pragma once

#include <string_view>

namespace korvantes::ado {

/// The only order of texts: lists on the screen, ORDER BY and comparisons in statements use it.
///
/// As a Spanish reader expects and as the server's usual collation does: letters first without
/// regard to case and accents, with ñ as a letter of its own after n; if that leaves two texts
/// equal, accents decide (a before á); case never does. Blanks at the end do not count, so
/// "ABC" equals "abc  ". Other characters order by their code.
///
/// @return below 0, 0 or above 0, as with strcmp
int compareTexts(std::string_view a, std::string_view b);

/// Comparison of names of columns, controls and objects: ASCII letters without regard to case,
/// every other byte as it is.
bool sameName(std::string_view a, std::string_view b);

}  // namespace korvantes::ado
