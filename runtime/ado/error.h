// runtime/ado: values, recordsets and connections, used by every layer.
//
// Nothing here depends on an engine. Values are exact: money and percentages are scaled integers,
// converted to double only on request.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace korvantes::ado {

/// What went wrong, for callers that act on it. The same on every engine.
enum class ErrorKind {
  Other,            ///< none of the others; the sentence says which
  Busy,             ///< another user holds what is needed; trying again later may work
  Duplicate,        ///< a row with the same key exists already
  Constraint,       ///< the data break another rule of the table
  Gone,             ///< somebody else has deleted the row
  TransactionLost,  ///< the engine gave up the open transaction; roll it back
  ConnectionLost,   ///< the database can no longer be reached
  SharedMissing,    ///< the shared database, or a table of it, does not exist
  FileReplaced,     ///< the open database file was deleted, renamed or replaced
  DiskFull,
  NotPermitted,  ///< read-only, or a right is missing
  Damaged,       ///< the file is corrupt, or not one of our databases
  Syntax,        ///< the statement, or a name in it, is wrong
  Overflow,      ///< a value does not fit its type
};

/// A failure of a connection or of a statement.
///
/// what() is a Spanish sentence for the user; the engine's own words appear in it only if no
/// sentence of ours covers the failure. The subject is the beginning of the statement that failed:
/// it names the table or the clause, and is cut short so that no long list of values ends up in a
/// message.
class Error : public std::runtime_error {
 public:
  /// A failure of no particular kind.
  /// @param number the engine's error number, 0 if it has none
  /// @param words the sentence for the user
  /// @param statement the statement that failed, empty if there was none
  Error(long number, const std::string& words, std::string_view statement = {});
  /// @param sqlState the five characters of the engine's SQLSTATE, empty if it has none
  Error(ErrorKind kind, long number, const std::string& words, std::string_view statement = {},
        std::string_view sqlState = {});

  ErrorKind kind() const { return kind_; }
  long number() const { return number_; }
  const std::string& sqlState() const { return sqlState_; }
  const std::string& subject() const { return subject_; }

 private:
  ErrorKind kind_;
  long number_;
  std::string sqlState_;
  std::string subject_;
};

/// The first words of a statement: one line of at most 60 characters.
std::string subjectOf(std::string_view statement);

/// A value that cannot be converted to the type asked for: Null to a number, text to a date, a
/// number too large for a Long.
class ConversionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace korvantes::ado
