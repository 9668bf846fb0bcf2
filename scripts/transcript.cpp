#include "scripts/transcript.h"

#include <ostream>
#include <string>

namespace korvantes::scripts {
namespace {

/// A line break, of one or of two characters, as \n.
std::string withVisibleBreaks(std::string_view text) {
  std::string visible;
  for (std::size_t place = 0; place < text.size(); ++place) {
    const char character = text[place];
    if (character == '\r' && place + 1 < text.size() && text[place + 1] == '\n') continue;
    if (character == '\r' || character == '\n')
      visible += "\\n";
    else
      visible += character;
  }
  return visible;
}

}  // namespace

void Transcript::action(std::string_view line) {
  out_ << "> " << line << '\n';
}

void Transcript::happening(std::string_view kind, std::string_view words) {
  out_ << '[' << kind << "] " << withVisibleBreaks(words) << '\n';
}

void Transcript::error(std::string_view words) {
  ++errors_;
  happening("error", words);
}

void Transcript::line(std::string_view text) {
  out_ << withVisibleBreaks(text) << '\n';
}

}  // namespace korvantes::scripts
