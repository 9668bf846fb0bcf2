#include "runtime/ado/temporary_folder.h"

#include <cerrno>
#include <cstdlib>
#include <system_error>
#include <unistd.h>
#include <utility>

#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"

namespace korvantes::ado {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(const std::error_code& error) {
  throw Error(systemErrorKind(error.value()), error.value(),
              "No se puede crear una carpeta temporal: " + systemWords(error));
}

fs::path systemFolder() {
  std::error_code error;
  fs::path folder = fs::temp_directory_path(error);
  if (error) fail(error);
  return folder;
}

}  // namespace

TemporaryFolder::TemporaryFolder(const fs::path& parent, std::string_view prefix) {
  std::string name = (parent.empty() ? systemFolder() : parent) / prefix;
  name += "XXXXXX";
  if (::mkdtemp(name.data()) == nullptr) fail({errno, std::generic_category()});
  path_ = name;
}

TemporaryFolder::TemporaryFolder(TemporaryFolder&& other) noexcept
    : path_(std::exchange(other.path_, {})) {}

TemporaryFolder::~TemporaryFolder() {
  std::error_code ignored;
  if (!path_.empty()) fs::remove_all(path_, ignored);
}

}  // namespace korvantes::ado
