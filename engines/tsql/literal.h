#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "engines/tsql/problem.h"
#include "engines/tsql/scan.h"
#include "engines/tsql/types.h"
#include "engines/tsql/value.h"

namespace korvantes::tsql {

/// A literal as written in the text.
struct Literal {
  PieceKind kind = PieceKind::Whole;
  std::string_view raw;
  std::size_t offset = 0;
};

/// The text between the quotes, with doubled quotes made single.
std::string textOf(const Literal& literal);

/// The type that the server gives the literal: int, or decimal for whole numbers beyond it;
/// decimal(digits, decimals); varchar(characters); varbinary(bytes).
Type typeOf(const Literal& literal);

/// The literal's value in its own type. Throws Refusal.
StoredValue valueOf(const Literal& literal);

/// How a lifted literal becomes a parameter of the compiled statement.
struct ParameterUse {
  std::size_t literal = 0;  ///< which of the text's literals, from 0
  bool negated = false;     ///< preceded by a minus
  Type target;              ///< the type it meets
  /// True if compared with the target, so that no digit may be lost; else assigned to it by the
  /// server's rules (rounding, an error if too long).
  bool compared = false;
  std::string column;  ///< the column it is assigned to
};

/// The parameter's value; empty if a compared number has more digits than the target. Throws
/// Refusal with the literal's place in `text`.
std::optional<StoredValue> convert(const Literal& literal, const ParameterUse& use,
                                   std::string_view text);

/// Whether a literal of this kind may meet the type at all.
bool mayMeet(PieceKind literal, const Type& target);

}  // namespace korvantes::tsql
