#include "runtime/ado/variant.h"

#include <atomic>
#include <cmath>
#include <limits>
#include <memory>

#include "runtime/ado/error.h"

namespace korvantes::ado {

namespace {

const char* nameOf(Variant::Kind kind) {
  switch (kind) {
    case Variant::Kind::Null:
      return "Null";
    case Variant::Kind::Boolean:
      return "un valor lógico";
    case Variant::Kind::Whole:
      return "un número entero";
    case Variant::Kind::Double:
      return "un número";
    case Variant::Kind::Decimal:
      return "un número exacto";
    case Variant::Kind::Date:
      return "una fecha";
    case Variant::Kind::Text:
      return "un texto";
    case Variant::Kind::Bytes:
      return "datos binarios";
  }
  return "desconocido";
}

[[noreturn]] void refuse(Variant::Kind found, const char* wanted) {
  throw ConversionError(std::string("El valor es ") + nameOf(found) + " y se esperaba " + wanted);
}

[[noreturn]] void refuseRange() {
  throw ConversionError("El número es demasiado grande para un entero de 32 bits");
}

/// A decimal without its fraction, half to even.
std::int64_t wholeHalfToEven(const Decimal& number) {
  const std::int64_t unit = Decimal(1, 0).rescaled(number.scale()).units();
  const std::int64_t whole = number.units() / unit;
  const std::int64_t rest = number.units() % unit;
  if (rest == 0) return whole;
  const std::int64_t distance = rest < 0 ? -rest : rest;
  const bool away = distance > unit - distance || (distance == unit - distance && whole % 2 != 0);
  if (!away) return whole;
  return rest < 0 ? whole - 1 : whole + 1;
}

}  // namespace

/// A value and its reference count.
template <typename Value>
struct Variant::Shared {
  explicit Shared(Value v) : value(std::move(v)) {}
  const Value value;
  std::atomic<std::size_t> owners{1};
};

namespace {

template <typename Shared>
void share(Shared* shared) {
  shared->owners.fetch_add(1, std::memory_order_relaxed);
}

/// The last owner deletes the value.
template <typename Shared>
void release(Shared* shared) {
  if (shared->owners.fetch_sub(1, std::memory_order_acq_rel) == 1) {
    const std::unique_ptr<Shared> last(shared);
  }
}

}  // namespace

Variant::Variant(std::string value)
    : payload_{.text = std::make_unique<Shared<std::string>>(std::move(value)).release()},
      kind_(Kind::Text) {}

Variant::Variant(Bytes value)
    : payload_{.bytes = std::make_unique<Shared<ado::Bytes>>(std::move(value)).release()},
      kind_(Kind::Bytes) {}

void Variant::share() const {
  if (kind_ == Kind::Text) {
    ado::share(payload_.text);
  } else {
    ado::share(payload_.bytes);
  }
}

void Variant::release() const {
  if (kind_ == Kind::Text) {
    ado::release(payload_.text);
  } else {
    ado::release(payload_.bytes);
  }
}

bool Variant::boolean() const {
  if (kind_ == Kind::Boolean) return payload_.whole != 0;
  refuse(kind_, nameOf(Kind::Boolean));
}

std::int64_t Variant::whole() const {
  if (kind_ == Kind::Whole) return payload_.whole;
  refuse(kind_, nameOf(Kind::Whole));
}

Decimal Variant::decimal() const {
  if (kind_ == Kind::Decimal) return {payload_.whole, scale_};
  refuse(kind_, nameOf(Kind::Decimal));
}

Decimal Variant::asDecimal() const {
  switch (kind_) {
    case Kind::Decimal:
      return decimal();
    case Kind::Whole:
      return {whole(), 0};
    default:
      return decimalFromDouble(asDouble(), Decimal::kMoneyScale);
  }
}

Date Variant::date() const {
  if (kind_ == Kind::Date) return {payload_.day.year, payload_.day.month, payload_.day.day};
  refuse(kind_, nameOf(Kind::Date));
}

const std::string& Variant::text() const {
  if (kind_ == Kind::Text) return payload_.text->value;
  refuse(kind_, nameOf(Kind::Text));
}

const Bytes& Variant::bytes() const {
  if (kind_ == Kind::Bytes) return payload_.bytes->value;
  refuse(kind_, nameOf(Kind::Bytes));
}

bool operator==(const Variant& a, const Variant& b) {
  if (a.kind_ != b.kind_) return false;
  switch (a.kind_) {
    case Variant::Kind::Null:
      return true;
    case Variant::Kind::Boolean:
    case Variant::Kind::Whole:
      return a.payload_.whole == b.payload_.whole;
    case Variant::Kind::Double:
      return a.payload_.number == b.payload_.number;
    case Variant::Kind::Decimal:
      return a.decimal() == b.decimal();
    case Variant::Kind::Date:
      return a.date() == b.date();
    case Variant::Kind::Text:
      return a.text() == b.text();
    case Variant::Kind::Bytes:
      return a.bytes() == b.bytes();
  }
  return false;
}

double Variant::asDouble() const {
  switch (kind()) {
    case Kind::Boolean:
      return boolean() ? 1 : 0;
    case Kind::Whole:
      return static_cast<double>(whole());
    case Kind::Double:
      return payload_.number;
    case Kind::Decimal:
      return decimal().toDouble();
    default:
      refuse(kind(), nameOf(Kind::Double));
  }
}

std::int32_t Variant::asLong() const {
  constexpr std::int64_t kSmallest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t kLargest = std::numeric_limits<std::int32_t>::max();
  std::int64_t number = 0;
  switch (kind()) {
    case Kind::Boolean:
      return boolean() ? 1 : 0;
    case Kind::Whole:
      number = whole();
      break;
    case Kind::Decimal:
      number = wholeHalfToEven(decimal());
      break;
    case Kind::Double: {
      const double rounded = std::nearbyint(payload_.number);  // half to even
      // Written so that NaN is refused as well.
      if (!(rounded >= static_cast<double>(kSmallest) &&
            rounded <= static_cast<double>(kLargest))) {
        refuseRange();
      }
      number = static_cast<std::int64_t>(rounded);
      break;
    }
    default:
      refuse(kind(), nameOf(Kind::Whole));
  }
  if (number < kSmallest || number > kLargest) refuseRange();
  return static_cast<std::int32_t>(number);
}

bool Variant::asBoolean() const {
  switch (kind()) {
    case Kind::Boolean:
      return boolean();
    case Kind::Whole:
      return whole() != 0;
    case Kind::Double:
      return payload_.number != 0;
    case Kind::Decimal:
      return decimal().units() != 0;
    default:
      refuse(kind(), nameOf(Kind::Boolean));
  }
}

}  // namespace korvantes::ado
