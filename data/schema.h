// data: the tables and the rule from which every commission comes.
#pragma once

#include <string_view>

namespace korvantes::data {

/// The text of data/schema.sql: T-SQL statements, each ending in a line with ';'.
extern const std::string_view kSchema;

}  // namespace korvantes::data
