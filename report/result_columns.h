#pragma once

#include "report/search_statements.h"
#include "runtime/screen/data_grid.h"

namespace korvantes::report {

/// Headings, widths, alignments and formats of a result just bound to the grid; columns that the
/// shape does not show are hidden. Throws std::out_of_range for a result of another shape.
void setUpColumns(screen::DataGrid& grid, Forma forma, bool bPorFecha);

}  // namespace korvantes::report
