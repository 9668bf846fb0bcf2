#pragma once

#include <cstdint>
#include <optional>

#include "runtime/ado/decimal.h"
#include "runtime/ado/variant.h"

namespace korvantes::office {

/// An amount in cents, from an exact decimal, a whole number, or the double nearest to one; empty
/// for Null. Throws ado::ConversionError for other kinds.
std::optional<ado::Decimal> inCents(const ado::Variant& value);

/// Exact sum of amounts in cents.
class Total {
 public:
  /// Null adds nothing. Throws ado::Error if the sum no longer fits.
  void add(const std::optional<ado::Decimal>& amount);
  ado::Decimal value() const { return {cents_, 2}; }

 private:
  std::int64_t cents_ = 0;
};

}  // namespace korvantes::office
