#include "scripts/pictures.h"

#include <exception>
#include <system_error>
#include <utility>

#include "runtime/ado/system_words.h"
#include "scripts/failure.h"

namespace korvantes::scripts {

void Pictures::take(const std::string& name) {
  if (!stage_.draws()) {
    transcript_.happening("captura", "sin pantalla");
    return;
  }
  const std::filesystem::path file = folder_ / name;
  std::error_code error;
  if (file.has_parent_path()) std::filesystem::create_directories(file.parent_path(), error);
  if (error)
    throw Failure("no se puede crear la carpeta " + inQuotes(file.parent_path().string()) + ": " +
                  ado::systemWords(error));
  stage_.capture(file);
  transcript_.happening("captura", name);
}

void Pictures::dialogShown() {
  if (waiting_.empty()) return;
  const std::string name = std::exchange(waiting_.front(), {});
  waiting_.pop_front();
  try {
    take(name);
  } catch (const std::exception& failure) {
    transcript_.error(failure.what());
  }
}

}  // namespace korvantes::scripts
