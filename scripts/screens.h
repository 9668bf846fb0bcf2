#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>

namespace korvantes::scripts {

/// The screens that can be opened, by the names that scripts use. Each opens its screen modally and
/// returns when it has been closed; a number, where the screen takes one, is the stored document to
/// open it on.
using Screens =
    std::map<std::string, std::function<void(std::optional<std::int32_t> number)>, std::less<>>;

}  // namespace korvantes::scripts
