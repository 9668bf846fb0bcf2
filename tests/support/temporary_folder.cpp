#include "tests/support/temporary_folder.h"

namespace korvantes::support {

namespace {

std::filesystem::path memoryIfThere() {
  std::filesystem::path memory = "/dev/shm";
  std::error_code none;
  return std::filesystem::is_directory(memory, none) ? memory : std::filesystem::path();
}

}  // namespace

TemporaryFolder::TemporaryFolder() : ado::TemporaryFolder(memoryIfThere()) {}

}  // namespace korvantes::support
