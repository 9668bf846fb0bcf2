#pragma once

#include <cstdint>
#include <string>
#include <variant>

#include "runtime/ado/variant.h"

namespace korvantes::tsql {

/// A value as the engine stores it: whole numbers, units of an exact number (scale by its type),
/// dates as "yyyy-mm-dd" text, texts as UTF-8, bytes.
using StoredValue = std::variant<std::monostate, std::int64_t, std::string, ado::Bytes>;

}  // namespace korvantes::tsql
