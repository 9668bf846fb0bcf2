#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "runtime/screen/form.h"

namespace korvantes::scripts {

// The model of the screen as text, one string per line of a transcript.

/// "Text1(10) = "12,5"", by the property that matters most: the text of a field, the caption of a
/// button, the value of a check box. Lists and grids: "ListView1 = 3 filas".
std::string controlLine(const screen::Control& control);

/// "cmdGrabar.Width = 1935". Throws Failure if the control has no such property.
std::string propertyLine(const screen::Control& control, std::string_view property);

/// "Tag = "e"", of the form itself. Throws Failure as above.
std::string propertyLine(const screen::Form& form, std::string_view property);

/// A heading line of the visible columns, and a line per row that starts with "[x] " or "[ ] ".
std::vector<std::string> listLines(const screen::ListView& list);

/// A heading line of the visible columns, and a line per row.
std::vector<std::string> gridLines(const screen::DataGrid& grid);

/// The caption, and each visible control in the order in which the form made them.
std::vector<std::string> formLines(const screen::Form& form);

}  // namespace korvantes::scripts
