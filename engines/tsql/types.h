#pragma once

#include <string>

namespace korvantes::tsql {

/// The server's types in the subset.
enum class TypeKind {
  Null,      ///< the word NULL before it meets a typed neighbour
  Bit,       ///< 0 or 1
  Int,       ///< 32 bits; counts are of this type too
  Money,     ///< exact, four decimals, 64 bits
  Decimal,   ///< exact, `precision` digits of which `scale` after the point
  Date,      ///< a day
  VarChar,   ///< up to `length` characters, 0 for max
  Char,      ///< exactly `length` characters, padded with blanks
  VarBinary  ///< bytes
};

struct Type {
  TypeKind kind = TypeKind::Null;
  int precision = 0;  ///< Decimal: digits in all
  int scale = 0;      ///< Decimal: digits after the point; Money: 4; Int and Bit: 0
  int length = 0;     ///< VarChar, Char, VarBinary: characters or bytes, 0 for max

  friend bool operator==(const Type&, const Type&) = default;
};

/// The type as in a declaration: "money", "decimal(5,2)", "varchar(40)".
std::string nameOf(const Type& type);

/// Decimals of money.
constexpr int kMoneyScale = 4;
/// Largest precision of a decimal: its units are 64-bit whole numbers.
constexpr int kMaxDigits = 18;

/// Bit, Int, Money or Decimal.
bool isNumber(const Type& type);
/// VarChar or Char.
bool isText(const Type& type);

Type bitType();
Type intType();
Type moneyType();
Type decimalType(int precision, int scale);
/// 0 means max.
Type varCharType(int length);

}  // namespace korvantes::tsql
