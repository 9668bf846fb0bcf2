#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace korvantes {

/// Ends an order: one Spanish sentence for the user.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The text on one line: line breaks and other control characters become single blanks.
std::string onOneLine(std::string_view words);

/// Quotes a value as messages do: «valor».
std::string inQuotes(std::string_view value);

}  // namespace korvantes
