#include "host/input_text.h"

#include <cerrno>
#include <fstream>
#include <iterator>

#include "runtime/ado/system_words.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

std::string wholeText(std::istream& stream) {
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace

std::string readInput(const std::string& path, std::istream& standardInput) {
  if (path == "-") return wholeText(standardInput);
  const auto refuse = [&path](int error) {
    return Failure("no se puede leer " + inQuotes(path) + ": " + ado::systemWords(error));
  };
  std::ifstream file(path, std::ios::binary);
  if (!file) throw refuse(errno);
  // A folder can be opened, but not read.
  if (file.peek() == std::ifstream::traits_type::eof() && file.bad()) throw refuse(EISDIR);
  return wholeText(file);
}

}  // namespace korvantes::host
