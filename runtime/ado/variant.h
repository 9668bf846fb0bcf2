#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "runtime/ado/date.h"
#include "runtime/ado/decimal.h"

namespace korvantes::ado {

/// What a Variant holds. (Declared outside the class and before Bytes, or the compiler warns that
/// an enumerator shadows the type.) Kinds from Text on are shared between copies.
enum class VariantKind : std::uint8_t { Null, Boolean, Whole, Double, Decimal, Date, Text, Bytes };

using Bytes = std::vector<std::byte>;

/// One value of a field or of a statement. A result may hold millions of them, so a value takes 16
/// bytes, and copies share the text or the bytes, which never change.
class Variant {
 public:
  using Kind = VariantKind;

  Variant() = default;
  Variant(bool value) : payload_{.whole = value ? 1 : 0}, kind_(Kind::Boolean) {}
  Variant(int value) : Variant(std::int64_t{value}) {}
  Variant(std::int64_t value) : payload_{.whole = value}, kind_(Kind::Whole) {}
  Variant(double value) : payload_{.number = value}, kind_(Kind::Double) {}
  Variant(Decimal value)
      : payload_{.whole = value.units()},
        kind_(Kind::Decimal),
        scale_(static_cast<std::int8_t>(value.scale())) {}
  Variant(Date value)
      : payload_{.day = {static_cast<std::int16_t>(value.year),
                         static_cast<std::int8_t>(value.month),
                         static_cast<std::int8_t>(value.day)}},
        kind_(Kind::Date) {}
  Variant(std::string value);
  Variant(const char* value) : Variant(std::string(value)) {}
  Variant(Bytes value);

  Variant(const Variant& other)
      : payload_(other.payload_), kind_(other.kind_), scale_(other.scale_) {
    if (isShared()) share();
  }
  Variant(Variant&& other) noexcept
      : payload_(other.payload_), kind_(other.kind_), scale_(other.scale_) {
    other.kind_ = Kind::Null;
  }
  Variant& operator=(Variant other) noexcept {
    std::swap(payload_, other.payload_);
    std::swap(kind_, other.kind_);
    std::swap(scale_, other.scale_);
    return *this;
  }
  ~Variant() {
    if (isShared()) release();
  }

  Kind kind() const { return kind_; }
  bool isNull() const { return kind_ == Kind::Null; }

  /// Return the stored value. Throw ConversionError if it is of another kind.
  bool boolean() const;
  std::int64_t whole() const;
  Decimal decimal() const;
  Date date() const;
  const std::string& text() const;
  const Bytes& bytes() const;

  /// Number as a double, from Boolean (0 or 1), Whole, Double and Decimal. Throws ConversionError
  /// for Null and for every other kind: texts are converted by the screen, under its regional
  /// settings.
  double asDouble() const;

  /// Number as an exact decimal: Decimal and Whole as they are; a Double as the amount of money
  /// that its 15 significant digits stand for. Throws ConversionError for Null and other kinds.
  Decimal asDecimal() const;

  /// Number as a 32-bit whole number; a fraction rounds half to even, as the runtime's Long
  /// conversion does. Throws ConversionError for Null, other kinds, and numbers beyond 32 bits.
  std::int32_t asLong() const;

  /// True for a number other than 0 or a true Boolean. Throws ConversionError otherwise.
  bool asBoolean() const;

  /// Same kind and same value; decimals by value.
  friend bool operator==(const Variant& a, const Variant& b);

 private:
  template <typename Value>
  struct Shared;
  struct Day {
    std::int16_t year;
    std::int8_t month, day;
  };
  /// kind_ tells which member is in use; whole is also the truth of a Boolean and the units of a
  /// Decimal.
  union Payload {
    std::int64_t whole;
    double number;
    Day day;
    Shared<std::string>* text;
    Shared<ado::Bytes>* bytes;
  };

  bool isShared() const { return kind_ >= Kind::Text; }
  void share() const;
  void release() const;

  Payload payload_{.whole = 0};
  Kind kind_ = Kind::Null;
  std::int8_t scale_ = 0;
};

}  // namespace korvantes::ado
