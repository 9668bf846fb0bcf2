#pragma once

#include <string>
#include <string_view>

namespace korvantes::tsql {

/// Quotes an identifier as standard SQL does: in double quotes, those inside doubled.
std::string quotedName(std::string_view name);

/// The quoted name of a table, preceded by that of its database unless it is empty:
/// "Vespara"."PAIS".
std::string qualifiedName(std::string_view database, std::string_view table);

/// Quotes a text as standard SQL does: in single quotes, those inside doubled.
std::string quotedText(std::string_view text);

}  // namespace korvantes::tsql
