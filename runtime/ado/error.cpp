#include "runtime/ado/error.h"

#include "runtime/ado/utf8.h"

namespace korvantes::ado {

Error::Error(long number, const std::string& words, std::string_view statement)
    : Error(ErrorKind::Other, number, words, statement) {}

Error::Error(ErrorKind kind, long number, const std::string& words, std::string_view statement,
             std::string_view sqlState)
    : std::runtime_error(words),
      kind_(kind),
      number_(number),
      sqlState_(sqlState),
      subject_(subjectOf(statement)) {}

std::string subjectOf(std::string_view statement) {
  constexpr std::size_t kLongest = 60;
  std::string line;
  bool blankPending = false;
  // Four bytes a character at most: reading further cannot change the first 60 characters.
  for (const char c : statement) {
    const bool blank = c == ' ' || (c >= '\t' && c <= '\r');
    if (blank) {
      blankPending = !line.empty();
      continue;
    }
    if (line.size() > kLongest * 4) break;
    if (blankPending) line += ' ';
    blankPending = false;
    line += c;
  }
  line.resize(firstCharacters(line, kLongest).size());
  while (!line.empty() && line.back() == ' ') line.pop_back();
  return line;
}

}  // namespace korvantes::ado
