#include "host/input_text.h"

#include <cerrno>
#include <fstream>
#include <iterator>
#include <system_error>

#include "host/failure.h"

namespace korvantes::host {
namespace {

std::string wholeText(std::istream& stream) {
  return {std::istreambuf_iterator<char>(stream), std::istreambuf_iterator<char>()};
}

}  // namespace

std::string readInput(const std::string& path, std::istream& standardInput) {
  if (path == "-") return wholeText(standardInput);
  const auto refuse = [&path](const std::error_code& error) {
    return Failure("no se puede leer " + inQuotes(path) + ": " + systemWords(error));
  };
  std::ifstream file(path, std::ios::binary);
  if (!file) throw refuse(std::error_code(errno, std::generic_category()));
  // A folder opens, but does not read.
  if (file.peek() == std::ifstream::traits_type::eof() && file.bad())
    throw refuse(std::make_error_code(std::errc::is_a_directory));
  return wholeText(file);
}

}  // namespace korvantes::host
