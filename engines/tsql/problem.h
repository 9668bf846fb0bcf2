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

/// What can be wrong with a statement or go wrong while it runs. The words stand in problem.cpp.
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

/// A problem before it has found its words: thrown by the lexer, the parser and the binder.
struct Refusal {
  Problem problem;
  Location where;
  std::string word;    ///< the word of the statement at fault
  std::string detail;  ///< what was expected instead, a type, a column
};

[[noreturn]] void refuse(Problem problem, Location where, std::string_view word = {},
                         std::string_view detail = {});

/// The Spanish words of a refusal, with its place.
ado::Error describe(const Refusal& refusal, std::string_view statement);

/// A problem met while a statement runs, where there is no place in the text to point at.
ado::Error failure(Problem problem, std::string_view word = {}, std::string_view detail = {});

}  // namespace korvantes::tsql
