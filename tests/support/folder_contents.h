#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <string>

namespace korvantes::support {

/// The files of a folder with all their bytes, by name.
inline std::map<std::string, std::string> contentsOf(const std::filesystem::path& folder) {
  std::map<std::string, std::string> contents;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) {
    std::ifstream file(entry.path(), std::ios::binary);
    contents[entry.path().filename().string()] = {std::istreambuf_iterator<char>(file), {}};
  }
  return contents;
}

}  // namespace korvantes::support
