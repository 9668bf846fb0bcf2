#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace korvantes::scripts {

/// The words after the verb of a script's line, taken from the left.
class Words {
 public:
  explicit Words(std::string_view text) : text_(text) {}

  /// The next word. Throws a Failure that names what is missing if there is none.
  std::string_view word(std::string_view whatIsMissing);
  /// The next word as a number from `smallest` to the largest Long. Throws Failure.
  std::size_t number(std::string_view whatItIs, std::size_t smallest);
  /// Whether only blanks are left.
  bool atEnd() const;
  /// What is left, without surrounding blanks.
  std::string_view rest() const;
  /// Throws Failure if anything is left.
  void end() const;

 private:
  std::string_view text_;
};

/// A text between double quotes, without them; empty for any other text.
std::optional<std::string_view> withoutQuotes(std::string_view text);

}  // namespace korvantes::scripts
