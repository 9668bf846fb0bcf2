#include <gtest/gtest.h>

#include "component/mdoKORVANTES.h"

namespace korvantes {
namespace {

TEST(TaxNumbers, GetTheLetterOfTheirDigits) {
  const std::pair<const char*, const char*> cases[] = {
      // With no letter, a wrong one, and more characters than bytes.
      {"12345678", "12345678Z"},
      {"12345678A", "12345678Z"},
      {"12345678Ñ", "12345678Z"},
      // Older numbers have fewer digits; separators do not count, nor what is between digits.
      {"12.345.678-X", "12.345.678-Z"},
      {"12A34", "12A34S"},
      // Foreigners, companies and other texts that begin with a letter.
      {"Y1234567A", "Y1234567A"},
      {" B12345678 ", "B12345678"},
      // Too short for anything.
      {"", ""},
      {"5", ""},
      // More digits than any letter covers: nothing typed is lost.
      {"123456789A", "123456789A"},
      // Pasted blanks are not taken for the letter.
      {" 12345678\t", "12345678Z"},
      {"12345678Z\u00A0", "12345678Z"}};
  for (const auto& [typed, completed] : cases)
    EXPECT_EQ(mdoKORVANTES::msCompletaNif(typed), completed) << typed;
}

}  // namespace
}  // namespace korvantes
