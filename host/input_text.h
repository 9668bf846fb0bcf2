#pragma once

#include <iosfwd>
#include <string>

namespace korvantes::host {

/// The whole text of a file, or of the standard input for "-". Throws Failure if it cannot be
/// read.
std::string readInput(const std::string& path, std::istream& standardInput);

}  // namespace korvantes::host
