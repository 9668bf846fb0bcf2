#pragma once

#include <string>
#include <system_error>

#include "runtime/ado/error.h"

namespace korvantes::ado {

/// Describes an operating system error in Spanish, whatever the machine's language: "el disco está
/// lleno". An unknown error is described by its number.
std::string systemWords(const std::error_code& code);
/// The same for an errno value.
std::string systemWords(int errorNumber);

/// The kind of such a failure: DiskFull, NotPermitted or Other.
ErrorKind systemErrorKind(int errorNumber);

}  // namespace korvantes::ado
