#include "engines/tsql/problem.h"

namespace korvantes::tsql {

namespace {

struct Words {
  long number;  ///< the server's number for the same failure
  const char* text;
};

Words wordsOf(Problem problem) {
  switch (problem) {
    case Problem::Empty:
      return {102, "la sentencia está vacía"};
    case Problem::BadCharacter:
      return {102, "el carácter {word} no se admite aquí"};
    case Problem::Unclosed:
      return {105, "falta cerrar {word}"};
    case Problem::FloatingPoint:
      return {102, "no se admiten números en coma flotante: «{word}»"};
    case Problem::Unexpected:
      return {102, "no se esperaba «{word}»"};
    case Problem::Expected:
      return {102, "se esperaba {detail} y no «{word}»"};
    case Problem::Missing:
      return {102, "falta {detail} al final de la sentencia"};
    case Problem::SecondStatement:
      return {102, "solo se admite una sentencia; sobra «{word}»"};
    case Problem::TooDeep:
      return {191, "la sentencia es demasiado compleja en «{word}»"};
    case Problem::TooManyLiterals:
      return {8632, "la sentencia tiene demasiados valores"};
    case Problem::NotSupported:
      return {102, "no se admite «{word}»"};
    case Problem::NoDatabase:
      return {911, "no existe la base de datos «{word}»"};
    case Problem::NoTable:
      return {208, "no existe la tabla «{word}»"};
    case Problem::NoSharedTable:
      return {208, "la base de datos compartida no tiene la tabla «{word}»"};
    case Problem::NoColumn:
      return {207, "no existe la columna «{word}»"};
    case Problem::NoFunction:
      return {195, "no se admite la función «{word}»"};
    case Problem::NoType:
      return {243, "no se admite el tipo «{word}»"};
    case Problem::NoSource:
      return {4104, "no hay ninguna tabla de nombre «{word}» en la sentencia"};
    case Problem::Ambiguous:
      return {209, "el nombre de columna «{word}» es ambiguo"};
    case Problem::DuplicateSource:
      return {1013, "la tabla «{word}» aparece dos veces; necesita un alias"};
    case Problem::DuplicateColumn:
      return {264, "la columna «{word}» aparece dos veces"};
    case Problem::TableExists:
      return {2714, "ya existe la tabla «{word}»"};
    case Problem::ArgumentCount:
      return {174, "la función «{word}» necesita {detail}"};
    case Problem::AggregateHere:
      return {147, "la función de agregado «{word}» no se admite aquí"};
    case Problem::NotGrouped:
      return {8120, "la columna «{word}» no está en un agregado ni en GROUP BY"};
    case Problem::OrderPosition:
      return {108, "ORDER BY {word} no corresponde a ninguna columna del resultado"};
    case Problem::OrderNotSelected:
      return {
          145,
          "con DISTINCT o UNION, ORDER BY «{word}» debe estar entre las columnas del resultado"};
    case Problem::OneColumn:
      return {116, "la subconsulta debe dar una sola columna"};
    case Problem::ValueCount:
      return {213, "hay {detail}"};
    case Problem::UnionCount:
      return {205, "las partes del UNION tienen {detail} columnas"};
    case Problem::IdentityValue:
      return {544, "la columna «{word}» la numera la base de datos y no admite un valor"};
    case Problem::NullValue:
      return {515, "la columna «{word}» no puede quedar vacía"};
    case Problem::MissingValue:
      return {515, "falta el valor de la columna «{word}», que no puede quedar vacía"};
    case Problem::TypesDiffer:
      return {402, "no se pueden combinar {detail} en «{word}»"};
    case Problem::WrongType:
      return {8117, "«{word}» no admite un operando {detail}"};
    case Problem::NotConvertible:
      return {529, "no se puede convertir {detail} en «{word}»"};
    case Problem::ConditionExpected:
      return {4145, "se esperaba una condición en «{word}»"};
    case Problem::TooManyDecimals:
      return {8115, "el resultado de «{word}» necesita más de 18 decimales"};
    case Problem::BadSize:
      return {131, "el tamaño «{word}» no se admite"};
    case Problem::SecondKey:
      return {8110, "la tabla ya tiene clave principal; sobra «{word}»"};
    case Problem::NumberTooLarge:
      return {8115, "el número {word} no cabe en {detail}"};
    case Problem::NoNumber:
      return {245, "El texto no es un número: «{word}»"};
    case Problem::NoDate:
      return {241, "El texto no es una fecha: «{word}»"};
    case Problem::TextTooLong:
      return {8152, "El texto es demasiado largo para la columna «{word}»"};
    case Problem::Overflow:
      return {8115, "El resultado de un cálculo es demasiado grande"};
    case Problem::DivisionByZero:
      return {8134, "División entre cero"};
    case Problem::TooManyRows:
      return {512, "Una subconsulta que debe dar un valor ha dado más de una fila"};
  }
  return {0, ""};
}

ado::ErrorKind kindOf(Problem problem) {
  switch (problem) {
    case Problem::NoSharedTable:
      return ado::ErrorKind::SharedMissing;
    case Problem::IdentityValue:
    case Problem::NullValue:
    case Problem::MissingValue:
      return ado::ErrorKind::Constraint;
    case Problem::TooManyDecimals:
    case Problem::NumberTooLarge:
    case Problem::TextTooLong:
    case Problem::Overflow:
      return ado::ErrorKind::Overflow;
    case Problem::NoNumber:
    case Problem::NoDate:
    case Problem::DivisionByZero:
    case Problem::TooManyRows:
      return ado::ErrorKind::Other;
    default:
      return ado::ErrorKind::Syntax;
  }
}

/// A sentence on its own, not preceded by a place.
std::string asSentence(std::string text) {
  if (text.front() >= 'a' && text.front() <= 'z')
    text.front() = static_cast<char>(text.front() - 32);
  return text;
}

void replace(std::string& text, std::string_view mark, std::string_view by) {
  const auto position = text.find(mark);
  if (position != std::string::npos) text.replace(position, mark.size(), by);
}

std::string wordsWith(const char* pattern, std::string_view word, std::string_view detail) {
  std::string text = pattern;
  replace(text, "{detail}", detail);
  replace(text, "{word}", word);
  return text + ".";
}

}  // namespace

Location locate(std::string_view text, std::size_t offset) {
  Location place;
  for (const char c : text.substr(0, offset)) {
    if (c == '\n') {
      ++place.line;
      place.column = 1;
    } else if ((static_cast<unsigned char>(c) & 0xC0U) != 0x80U) {
      ++place.column;
    }
  }
  return place;
}

void refuse(Problem problem, Location where, std::string_view word, std::string_view detail) {
  throw Refusal{problem, where, std::string(word), std::string(detail)};
}

ado::Error describe(const Refusal& refusal, std::string_view statement) {
  const auto words = wordsOf(refusal.problem);
  const std::string text = wordsWith(words.text, refusal.word, refusal.detail);
  // Neither is about a place in the statement.
  const bool whole = refusal.problem == Problem::Empty || refusal.problem == Problem::NoSharedTable;
  const std::string place = "Línea " + std::to_string(refusal.where.line) + ", columna " +
                            std::to_string(refusal.where.column) + ": ";
  return {kindOf(refusal.problem), words.number, whole ? asSentence(text) : place + text,
          statement};
}

ado::Error failure(Problem problem, std::string_view word, std::string_view detail) {
  const auto words = wordsOf(problem);
  return {kindOf(problem), words.number, asSentence(wordsWith(words.text, word, detail))};
}

}  // namespace korvantes::tsql
