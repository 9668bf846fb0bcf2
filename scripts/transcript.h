#pragma once

#include <iosfwd>
#include <string_view>

namespace korvantes::scripts {

/// What a script run prints: its lines, and under each what happened, in the order in which it
/// happened.
class Transcript {
 public:
  explicit Transcript(std::ostream& out) : out_(out) {}

  /// "> line".
  void action(std::string_view line);
  /// "[kind] words"; a line break in the words shows as \n.
  void happening(std::string_view kind, std::string_view words);
  /// "[error] words"; counted.
  void error(std::string_view words);
  /// A line unchanged, except that line breaks show as \n.
  void line(std::string_view text);

  /// For callers that print several lines.
  std::ostream& stream() { return out_; }
  int errors() const { return errors_; }

 private:
  std::ostream& out_;
  int errors_ = 0;
};

}  // namespace korvantes::scripts
