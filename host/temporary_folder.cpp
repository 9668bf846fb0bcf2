#include "host/temporary_folder.h"

#include <cerrno>
#include <stdlib.h>  // mkdtemp
#include <string>
#include <system_error>

#include "runtime/ado/system_words.h"
#include "scripts/failure.h"

namespace korvantes::host {

TemporaryFolder::TemporaryFolder() {
  std::error_code error;
  const std::filesystem::path parent = std::filesystem::temp_directory_path(error);
  std::string name = (parent / "korvantes-XXXXXX").string();
  if (!error && ::mkdtemp(name.data()) == nullptr)
    error = std::error_code(errno, std::generic_category());
  if (error) throw Failure("no se puede crear una carpeta temporal: " + ado::systemWords(error));
  path_ = name;
}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace korvantes::host
