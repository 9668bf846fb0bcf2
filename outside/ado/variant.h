#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

#include "outside/ado/date.h"
#include "outside/ado/decimal.h"

namespace korvantes::ado {

/// What a Variant holds, in the order of its alternatives. (Stands outside of the class and before
/// Bytes, or the compiler takes the enumerator for a shadow of the type.)
enum class VariantKind { Null, Boolean, Whole, Double, Decimal, Date, Text, Bytes };

using Bytes = std::vector<std::byte>;

/// One value of a field or of a statement.
class Variant {
 public:
  using Kind = VariantKind;

  Variant() = default;
  Variant(bool value) : value_(value) {}
  Variant(int value) : value_(std::int64_t{value}) {}
  Variant(std::int64_t value) : value_(value) {}
  Variant(double value) : value_(value) {}
  Variant(Decimal value) : value_(value) {}
  Variant(Date value) : value_(value) {}
  Variant(std::string value) : value_(std::move(value)) {}
  Variant(const char* value) : value_(std::string(value)) {}
  Variant(Bytes value) : value_(std::move(value)) {}

  Kind kind() const { return static_cast<Kind>(value_.index()); }
  bool isNull() const { return kind() == Kind::Null; }

  /// The value as it is stored. Throw ConversionError when the kind is another one.
  bool boolean() const;
  std::int64_t whole() const;
  const Decimal& decimal() const;
  const Date& date() const;
  const std::string& text() const;
  const Bytes& bytes() const;

  /// Number as a double, from Boolean (0 or 1), Whole, Double and Decimal. Throws ConversionError
  /// for Null and for every other kind: texts are converted by the screen, under its regional
  /// settings.
  double asDouble() const;

  /// Number as a 32-bit whole number; a fraction rounds half to even, as the runtime's Long
  /// conversion does. Throws ConversionError for Null, other kinds, and numbers beyond 32 bits.
  std::int32_t asLong() const;

  /// True for a number other than 0 or a true Boolean. Throws ConversionError otherwise.
  bool asBoolean() const;

  /// Same kind and same value; decimals by value.
  friend bool operator==(const Variant&, const Variant&) = default;

 private:
  std::variant<std::monostate, bool, std::int64_t, double, Decimal, Date, std::string, Bytes>
      value_;
};

}  // namespace korvantes::ado
