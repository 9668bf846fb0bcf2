#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace korvantes {

/// What ends an order: one Spanish sentence for the user.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The words on one line: line breaks and other control characters become single blanks.
std::string onOneLine(std::string_view words);

/// A value as messages quote it: «valor».
std::string inQuotes(std::string_view value);

}  // namespace korvantes
