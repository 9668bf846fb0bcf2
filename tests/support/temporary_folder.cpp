#include "tests/support/temporary_folder.h"

#include <stdexcept>
#include <stdlib.h>

namespace korvantes::support {

TemporaryFolder::TemporaryFolder() {
  const std::filesystem::path memory = "/dev/shm";
  std::error_code none;
  const bool inMemory = std::filesystem::is_directory(memory, none);
  std::string name =
      ((inMemory ? memory : std::filesystem::temp_directory_path()) / "korvantes-XXXXXX").string();
  if (mkdtemp(name.data()) == nullptr) throw std::runtime_error("no temporary folder");
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace korvantes::support
