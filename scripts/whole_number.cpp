#include "scripts/whole_number.h"

#include <charconv>
#include <string>
#include <system_error>

#include "scripts/failure.h"

namespace korvantes::scripts {

std::int64_t readWholeNumber(std::string_view argument, std::string_view text,
                             std::int64_t smallest, std::int64_t largest) {
  std::int64_t number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  const bool whole = end == text.data() + text.size() && error != std::errc::invalid_argument;
  if (!whole)
    throw Failure(std::string(argument) + ": " + inQuotes(text) + " no es un número entero");
  if (error == std::errc::result_out_of_range || number < smallest || number > largest)
    throw Failure(std::string(argument) + ": " + inQuotes(text) + " está fuera de los límites, " +
                  std::to_string(smallest) + " a " + std::to_string(largest));
  return number;
}

}  // namespace korvantes::scripts
