#pragma once

#include <string_view>

namespace korvantes::data {

/// The text of data/schema.sql: T-SQL statements, each ending with a line of ';'.
extern const std::string_view kSchema;

}  // namespace korvantes::data
