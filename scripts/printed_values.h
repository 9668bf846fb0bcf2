#pragma once

#include <iosfwd>
#include <string>
#include <string_view>

#include "runtime/ado/connection.h"

namespace korvantes::scripts {

/// A cell of a result as one column of a tab-separated line: whole numbers bare, exact
/// decimals with a point and all digits of their scale, truth values 1 and 0, dates dd/mm/yyyy,
/// Null as NULL, bytes as 0x…, texts escaped.
std::string printedValue(const ado::Variant& value);

/// A text with its tabs, line breaks and backslashes as \t, \n, \r and \\.
std::string escapedText(std::string_view text);

/// Runs one statement and prints its result: for a SELECT a heading line with the names of
/// the columns and a line per row, for any other statement the count "N filas".
/// Errors of the connection propagate; nothing is printed then.
void printStatement(ado::Connection& connection, std::string_view statement, std::ostream& out);

}  // namespace korvantes::scripts
