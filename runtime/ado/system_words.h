#pragma once

#include <string>
#include <system_error>

namespace korvantes::ado {

/// The Spanish words of a failure of the operating system, whatever the machine's language:
/// "el disco está lleno". One that is not known here is told by its number.
std::string systemWords(const std::error_code& code);
/// The same for a value of errno.
std::string systemWords(int errorNumber);

}  // namespace korvantes::ado
