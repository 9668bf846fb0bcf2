#pragma once

#include <cstdint>
#include <span>

#include "engines/tsql/value.h"

namespace korvantes::tsql {

/// The functions that the SQLite writer's texts call. An engine registers every one of them, under
/// its name, as deterministic. A call with a Null argument returns Null and does not reach the
/// function. A failure is an ado::Error with the server's number and Spanish words.
///
/// Besides these the engine registers the collation KV_TEXT, which is ado::compareTexts.

/// A function of whole numbers (counts, keys, units of exact numbers). The operands are followed by
/// the numbers of the operation (scales, places), which are constants of the text and never Null.
struct NumberFunction {
  const char* name;
  int operands;
  int numbers;
  std::int64_t (*call)(const std::int64_t* arguments);
};

/// A function that takes or returns a text.
struct ValueFunction {
  const char* name;
  int arguments;
  StoredValue (*call)(std::span<const StoredValue> arguments);
};

std::span<const NumberFunction> numberFunctions();
std::span<const ValueFunction> valueFunctions();

}  // namespace korvantes::tsql
