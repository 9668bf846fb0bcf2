#include "office/output_folder.h"

#include <system_error>

#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"

namespace korvantes::office {

namespace {

/// The runtime's number for a path that cannot be reached.
constexpr long kPathNotFound = 76;

}  // namespace

std::filesystem::path OutputFolder::fileFor(const std::string& name) {
  std::error_code failure;
  std::filesystem::create_directories(folder_, failure);
  if (!std::filesystem::is_directory(folder_)) {
    throw ado::Error(kPathNotFound, "No se puede usar la carpeta " + folder_.string() + ": " +
                                        ado::systemWords(failure));
  }
  const std::filesystem::path file(name);
  const int times = ++given_[name];
  if (times == 1) return folder_ / file;
  return folder_ / (file.stem().string() + "-" + std::to_string(times) + file.extension().string());
}

}  // namespace korvantes::office
