#pragma once

#include <string>
#include <string_view>

namespace korvantes::tsql {

/// Quotes an identifier as in standard SQL: double quotes around it, inner ones doubled.
std::string quotedName(std::string_view name);

/// The quoted name of a table, preceded by that of its database unless it is empty:
/// "Vespara"."PAIS".
std::string qualifiedName(std::string_view database, std::string_view table);

/// Quotes a text as in standard SQL: single quotes around it, inner ones doubled.
std::string quotedText(std::string_view text);

}  // namespace korvantes::tsql
