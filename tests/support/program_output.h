#pragma once

#include <cstdio>
#include <stdexcept>
#include <string>

namespace korvantes::support {

/// What a command of the shell writes to its output. Throws when it fails.
inline std::string outputOf(const std::string& command) {
  FILE* const output = ::popen(command.c_str(), "r");
  std::string text;
  char piece[4096];
  while (const std::size_t size = std::fread(piece, 1, sizeof piece, output))
    text.append(piece, size);
  if (::pclose(output) != 0) throw std::runtime_error(command + " failed");
  return text;
}

}  // namespace korvantes::support
