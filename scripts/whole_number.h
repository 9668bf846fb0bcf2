#pragma once

#include <cstdint>
#include <string_view>

namespace korvantes::scripts {

/// Reads a whole number within the limits. Throws a Failure that names the argument.
std::int64_t readWholeNumber(std::string_view argument, std::string_view text,
                             std::int64_t smallest, std::int64_t largest);

}  // namespace korvantes::scripts
