#pragma once

#include <cstddef>
#include <string>
#include <string_view>

#include "runtime/ado/error.h"

namespace korvantes::tsql {

/// A place in a statement's text, from 1; the column counts characters.
struct Location {
  int line = 1;
  int column = 1;

  friend bool operator==(const Location&, const Location&) = default;
};

/// The place of a byte of the text.
Location locate(std::string_view text, std::size_t offset);

/// What can be wrong with a statement or go wrong while it runs. The words are in problem.cpp.
enum class Problem {
  // the text
  Empty,
  BadCharacter,
  Unclosed,
  FloatingPoint,
  Unexpected,
  Expected,
  Missing,
  SecondStatement,
  TooDeep,
  TooManyLiterals,
  NotSupported,
  // names
  NoDatabase,
  NoTable,
  NoSharedTable,
  NoColumn,
  NoFunction,
  NoType,
  NoSource,
  Ambiguous,
  DuplicateSource,
  DuplicateColumn,
  TableExists,
  // meaning
  ArgumentCount,
  AggregateHere,
  NotGrouped,
  OrderPosition,
  OrderNotSelected,
  OneColumn,
  ValueCount,
  UnionCount,
  IdentityValue,
  NullValue,
  MissingValue,
  TypesDiffer,
  WrongType,
  NotConvertible,
  ConditionExpected,
  TooManyDecimals,
  BadSize,
  SecondKey,
  // values
  NumberTooLarge,
  NoNumber,
  NoDate,
  TextTooLong,
  Overflow,
  DivisionByZero,
  TooManyRows,
};

/// A problem not yet put into words, as the lexer, the parser and the binder throw it.
struct Refusal {
  Problem problem;
  Location where;
  std::string word;    ///< the word of the statement at fault
  std::string detail;  ///< what was expected instead, a type, a column
};

[[noreturn]] void refuse(Problem problem, Location where, std::string_view word = {},
                         std::string_view detail = {});

/// The error for a refusal: its kind, and its Spanish words with the place in the statement.
ado::Error describe(const Refusal& refusal, std::string_view statement);

/// The error for a problem that appears while a statement runs, when there is no place to name.
ado::Error failure(Problem problem, std::string_view word = {}, std::string_view detail = {});

}  // namespace korvantes::tsql
