#include "outside/ado/variant.h"

#include <cmath>
#include <limits>

#include "outside/ado/error.h"

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

bool Variant::boolean() const {
  if (const auto* value = std::get_if<bool>(&value_)) return *value;
  refuse(kind(), nameOf(Kind::Boolean));
}

std::int64_t Variant::whole() const {
  if (const auto* value = std::get_if<std::int64_t>(&value_)) return *value;
  refuse(kind(), nameOf(Kind::Whole));
}

const Decimal& Variant::decimal() const {
  if (const auto* value = std::get_if<ado::Decimal>(&value_)) return *value;
  refuse(kind(), nameOf(Kind::Decimal));
}

const Date& Variant::date() const {
  if (const auto* value = std::get_if<ado::Date>(&value_)) return *value;
  refuse(kind(), nameOf(Kind::Date));
}

const std::string& Variant::text() const {
  if (const auto* value = std::get_if<std::string>(&value_)) return *value;
  refuse(kind(), nameOf(Kind::Text));
}

const Bytes& Variant::bytes() const {
  if (const auto* value = std::get_if<ado::Bytes>(&value_)) return *value;
  refuse(kind(), nameOf(Kind::Bytes));
}

double Variant::asDouble() const {
  switch (kind()) {
    case Kind::Boolean:
      return boolean() ? 1 : 0;
    case Kind::Whole:
      return static_cast<double>(whole());
    case Kind::Double:
      return std::get<double>(value_);
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
      const double rounded = std::nearbyint(std::get<double>(value_));  // half to even
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
      return std::get<double>(value_) != 0;
    case Kind::Decimal:
      return decimal().units() != 0;
    default:
      refuse(kind(), nameOf(Kind::Boolean));
  }
}

}  // namespace korvantes::ado
