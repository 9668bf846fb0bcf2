#pragma once

#include <string>
#include <system_error>

#include "runtime/ado/error.h"

namespace korvantes::ado {

/// The Spanish words of a failure of the operating system, whatever the machine's language:
/// "el disco está lleno". An unknown one gets its number.
std::string systemWords(const std::error_code& code);
/// The same for a value of errno.
std::string systemWords(int errorNumber);

/// The kind of such a failure: DiskFull, NotPermitted or Other.
ErrorKind systemErrorKind(int errorNumber);

}  // namespace korvantes::ado
