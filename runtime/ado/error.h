// outside/ado: values, recordsets and connections, as every layer passes them on.
//
// Nothing here knows an engine. Values are exact: money and percentages are scaled integers and
// become a double only where a caller asks for one.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>

namespace korvantes::ado {

/// What went wrong, for callers that act on it. The same on every engine.
enum class ErrorKind {
  Other,            ///< none of the others; the words say it
  Busy,             ///< another user has what is needed; trying again later may work
  Duplicate,        ///< the row, or one with its key, is there already
  Constraint,       ///< the data break another rule of the table
  Gone,             ///< the row was deleted, or changed, by somebody else
  TransactionLost,  ///< the open transaction was given up; roll it back
  ConnectionLost,   ///< the database can no longer be reached
  SharedMissing,    ///< the shared database is not there
  FileReplaced,     ///< the open database file was deleted, renamed or replaced
  DiskFull,
  NotPermitted,  ///< read-only, or a right is missing
  Damaged,       ///< the file is no database, or a broken one
  Syntax,        ///< the statement, or a name in it, is wrong
  Overflow,      ///< a value does not fit its type
};

/// A failure of a connection or of a statement.
///
/// what() is a sentence for the user: ours where the kind has one, else the engine's own words. The
/// subject is the beginning of the statement that failed: it names the table or the clause, and it
/// is cut short so that no long list of values ends up in a message.
class Error : public std::runtime_error {
 public:
  /// A failure of no particular kind.
  /// @param number the engine's error number, 0 where it has none
  /// @param words the sentence for the user
  /// @param statement the statement that failed, empty where there was none
  Error(long number, const std::string& words, std::string_view statement = {});
  /// @param sqlState the five characters of the engine's SQLSTATE, empty where it has none
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

/// The first words of a statement, one line, at most 60 characters.
std::string subjectOf(std::string_view statement);

/// A value that cannot be read as what the caller asked for: Null as a number, text as a date, a
/// number too large for a Long.
class ConversionError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace korvantes::ado
