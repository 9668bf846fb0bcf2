#include "data/statement_values.h"

#include "runtime/ado/characters.h"
#include "runtime/ado/error.h"
#include "runtime/screen/conversions.h"

namespace korvantes::data {

namespace {

std::string quoted(std::string_view text) {
  return "«" + ado::subjectOf(text) + "»";
}

}  // namespace

std::string digitsOf(std::string_view text) {
  if (text.empty() || !ado::allDigits(text))
    throw ado::ConversionError(quoted(text) + " no es un código");
  return std::string(text);
}

std::string dateOf(std::string_view text) {
  if (!screen::IsDate(text)) throw ado::ConversionError(quoted(text) + " no es una fecha válida");
  return std::string(text);
}

}  // namespace korvantes::data
