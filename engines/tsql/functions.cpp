#include "engines/tsql/functions.h"

#include <array>
#include <limits>

#include "engines/tsql/problem.h"
#include "engines/tsql/runtime.h"
#include "engines/tsql/text_values.h"
#include "engines/tsql/wide.h"
#include "runtime/ado/date.h"

namespace korvantes::tsql {

namespace {

std::int64_t fitting(std::optional<std::int64_t> result) {
  if (!result) throw failure(Problem::Overflow);
  return *result;
}

std::int64_t fitting(std::optional<Wide> result) {
  return fitting(result ? narrow(*result) : std::nullopt);
}

int small(std::int64_t value) {
  return static_cast<int>(value);
}

std::int64_t add(const std::int64_t* a) {
  return fitting(addUnits(a[0], a[1]));
}
std::int64_t subtract(const std::int64_t* a) {
  return fitting(subtractUnits(a[0], a[1]));
}
std::int64_t multiply(const std::int64_t* a) {
  return fitting(multiplyUnits(a[0], a[1]));
}

std::int64_t divide(const std::int64_t* a) {
  if (a[1] == 0) throw failure(Problem::DivisionByZero);
  return fitting(divideUnits(a[0], a[1], small(a[2])));
}

std::int64_t modulo(const std::int64_t* a) {
  if (a[1] == 0) throw failure(Problem::DivisionByZero);
  return a[1] == -1 ? 0 : a[0] % a[1];
}

std::int64_t absolute(const std::int64_t* a) {
  return a[0] < 0 ? fitting(subtractUnits(0, a[0])) : a[0];
}

std::int64_t rescale(const std::int64_t* a) {
  return fitting(rescaleUnits(a[0], small(a[1]), small(a[2])));
}

std::int64_t round(const std::int64_t* a) {
  return fitting(roundUnits(a[0], small(a[1]), small(a[2])));
}

std::int64_t subtractRound(const std::int64_t* a) {
  return fitting(roundUnits(subtract(a), small(a[2]), small(a[3])));
}

/// Both roundings of ROUND(CAST(x AS money), places), in their order.
std::int64_t rescaleWideAndRound(Wide units, const std::int64_t* fromToPlaces) {
  const int to = small(fromToPlaces[1]);
  const auto rescaled = rescaleWide(units, small(fromToPlaces[0]), to);
  if (!rescaled) throw failure(Problem::Overflow);
  return fitting(roundWide(*rescaled, to, small(fromToPlaces[2])));
}

std::int64_t rescaleRound(const std::int64_t* a) {
  return rescaleWideAndRound(a[0], a + 1);
}

std::int64_t multiplyRound(const std::int64_t* a) {
  return rescaleWideAndRound(Wide{a[0]} * Wide{a[1]}, a + 2);
}

std::int64_t checkInt(const std::int64_t* a) {
  return fitting(asInt(a[0]));
}

std::int64_t checkDigits(const std::int64_t* a) {
  if (!hasDigits(a[0], small(a[1]))) throw failure(Problem::Overflow);
  return a[0];
}

/// For a branch that only a second row reaches.
std::int64_t refuseRows(const std::int64_t*) {
  throw failure(Problem::TooManyRows);
}

constexpr std::array kNumberFunctions{
    NumberFunction{"kv_add", 2, 0, add},
    NumberFunction{"kv_sub", 2, 0, subtract},
    NumberFunction{"kv_sub_round", 2, 2, subtractRound},
    NumberFunction{"kv_mul", 2, 0, multiply},
    NumberFunction{"kv_mul_round", 2, 3, multiplyRound},
    NumberFunction{"kv_div", 2, 1, divide},
    NumberFunction{"kv_mod", 2, 0, modulo},
    NumberFunction{"kv_abs", 1, 0, absolute},
    NumberFunction{"kv_rescale", 1, 2, rescale},
    NumberFunction{"kv_rescale_round", 1, 3, rescaleRound},
    NumberFunction{"kv_round", 1, 2, round},
    NumberFunction{"kv_int", 1, 0, checkInt},
    NumberFunction{"kv_digits", 1, 1, checkDigits},
    NumberFunction{"kv_refuse_rows", 1, 0, refuseRows},
};

using Arguments = std::span<const StoredValue>;

std::int64_t whole(const StoredValue& value) {
  const auto* number = std::get_if<std::int64_t>(&value);
  if (number == nullptr) throw failure(Problem::NoNumber);
  return *number;
}

const std::string& text(const StoredValue& value) {
  const auto* found = std::get_if<std::string>(&value);
  if (found == nullptr) throw failure(Problem::WrongType, "texto", "de otro tipo");
  return *found;
}

Type textType(const StoredValue& length, const StoredValue& padded) {
  return {.kind = whole(padded) != 0 ? TypeKind::Char : TypeKind::VarChar,
          .length = small(whole(length))};
}

/// A type as the writer passes it: kind, precision, scale.
Type numberType(Arguments kindPrecisionScale) {
  return {.kind = static_cast<TypeKind>(whole(kindPrecisionScale[0])),
          .precision = small(whole(kindPrecisionScale[1])),
          .scale = small(whole(kindPrecisionScale[2]))};
}

StoredValue upper(Arguments a) {
  return upperCase(text(a[0]));
}
StoredValue lower(Arguments a) {
  return lowerCase(text(a[0]));
}

StoredValue like(Arguments a) {
  return std::int64_t{matchesLike(text(a[0]), text(a[1])) ? 1 : 0};
}

StoredValue fixText(Arguments a) {
  return fixedText(text(a[0]), textType(a[1], a[2]));
}

StoredValue storeText(Arguments a) {
  return storedText(text(a[0]), textType(a[1], a[2]), text(a[3]));
}

StoredValue numberText(Arguments a) {
  return textFromUnits(whole(a[0]), numberType(a.subspan(1, 3)), textType(a[4], a[5]));
}

StoredValue textNumber(Arguments a) {
  return unitsFromText(text(a[0]), numberType(a.subspan(1, 3)));
}

StoredValue textDate(Arguments a) {
  return isoFromText(text(a[0]));
}

StoredValue dateText(Arguments a) {
  const auto date = ado::Date::parseIso(text(a[0]));
  if (!date) throw failure(Problem::NoDate, text(a[0]));
  return date->dayFirst();
}

/// The last argument of COALESCE, so that only a Null reaches it.
StoredValue refuseNull(Arguments a) {
  throw failure(Problem::NullValue, text(a[0]));
}

template <StoredValue (*call)(Arguments)>
StoredValue failing(Arguments arguments) {
  try {
    return call(arguments);
  } catch (const Refusal& refusal) {
    throw failure(refusal.problem, refusal.word, refusal.detail);
  }
}

constexpr std::array kValueFunctions{
    ValueFunction{"kv_upper", 1, failing<upper>},
    ValueFunction{"kv_lower", 1, failing<lower>},
    ValueFunction{"kv_like", 2, failing<like>},
    ValueFunction{"kv_fix_text", 3, failing<fixText>},
    ValueFunction{"kv_store_text", 4, failing<storeText>},
    ValueFunction{"kv_number_text", 6, failing<numberText>},
    ValueFunction{"kv_text_number", 4, failing<textNumber>},
    ValueFunction{"kv_text_date", 1, failing<textDate>},
    ValueFunction{"kv_date_text", 1, failing<dateText>},
    ValueFunction{"kv_refuse_null", 1, failing<refuseNull>},
};

}  // namespace

std::span<const NumberFunction> numberFunctions() {
  return kNumberFunctions;
}
std::span<const ValueFunction> valueFunctions() {
  return kValueFunctions;
}

}  // namespace korvantes::tsql
