#include "engines/tsql/types.h"

namespace korvantes::tsql {

namespace {

std::string lengthOf(const Type& type) {
  return type.length == 0 ? "(max)" : "(" + std::to_string(type.length) + ")";
}

}  // namespace

std::string nameOf(const Type& type) {
  switch (type.kind) {
    case TypeKind::Null:
      return "null";
    case TypeKind::Bit:
      return "bit";
    case TypeKind::Int:
      return "int";
    case TypeKind::Money:
      return "money";
    case TypeKind::Decimal:
      return "decimal(" + std::to_string(type.precision) + "," + std::to_string(type.scale) + ")";
    case TypeKind::Date:
      return "date";
    case TypeKind::VarChar:
      return "varchar" + lengthOf(type);
    case TypeKind::Char:
      return "char" + lengthOf(type);
    case TypeKind::VarBinary:
      return "varbinary" + lengthOf(type);
  }
  return {};
}

bool isNumber(const Type& type) {
  return type.kind == TypeKind::Bit || type.kind == TypeKind::Int || type.kind == TypeKind::Money ||
         type.kind == TypeKind::Decimal;
}

bool isText(const Type& type) {
  return type.kind == TypeKind::VarChar || type.kind == TypeKind::Char;
}

Type bitType() {
  return {.kind = TypeKind::Bit};
}
Type intType() {
  return {.kind = TypeKind::Int};
}
Type moneyType() {
  return {.kind = TypeKind::Money, .scale = kMoneyScale};
}

Type decimalType(int precision, int scale) {
  return {.kind = TypeKind::Decimal, .precision = precision, .scale = scale};
}

Type varCharType(int length) {
  return {.kind = TypeKind::VarChar, .length = length};
}

}  // namespace korvantes::tsql
