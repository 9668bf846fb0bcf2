#pragma once

#include <string>
#include <vector>

#include "runtime/ado/recordset.h"

namespace korvantes::support {

/// A value as text: exact decimals with their scale, dates day first, Null as NULL.
std::string shown(const ado::Variant& value);

/// The rows of a result, cells joined by '|'.
std::vector<std::string> rowsOf(const ado::Recordset& rows);

}  // namespace korvantes::support
