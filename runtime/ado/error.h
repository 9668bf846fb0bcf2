// outside/ado: values, recordsets and connections, as every layer passes them on.
//
// Nothing here knows an engine. Values are exact: money and percentages are scaled integers and
// become a double only where a caller asks for one.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace korvantes::ado {

/// A failure of a connection or of a statement.
///
/// what() is the engine's own words, so that they can be shown to the user as they are. The
/// subject is the beginning of the statement that failed: it names the table or the clause, and it
/// is cut short so that no long list of values ends up in a message.
class Error : public std::runtime_error {
 public:
  /// @param number the engine's error number, 0 where it has none
  /// @param words the engine's words, in the language of the engine
  /// @param statement the statement that failed, empty where there was none
  Error(long number, const std::string& words, std::string_view statement = {});

  long number() const { return number_; }
  const std::string& subject() const { return subject_; }

 private:
  long number_;
  std::string subject_;
};

/// The first words of a statement, one line, at most 60 characters.
std::string subjectOf(std::string_view statement);

/// A value that cannot be read as what the caller asked for: Null as a number, text as a date, a
/// number too large for a Long.
class ConversionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace korvantes::ado
