#include <cerrno>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "runtime/ado/error.h"
#include "runtime/ado/system_words.h"
#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"

namespace korvantes::ado {
namespace {

TEST(TextOrderTest, OrdersAsASpanishReaderExpects) {
  // Every earlier text comes before every later one.
  const std::vector<std::string> order{
      "",      "1",       "10",    "9",    "a",     "Álamo",    "alamo b", "ana",   "ánade",
      "árbol", "canción", "canto", "caña", "cañón", "cao",      "coz",     "Élite", "n",
      "nz",    "ñ",       "Ñu",    "o",    "Óscar", "pingüino", "z"};
  for (std::size_t i = 0; i < order.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) {
      EXPECT_GT(compareTexts(order[i], order[j]), 0) << order[i] << " / " << order[j];
      EXPECT_LT(compareTexts(order[j], order[i]), 0) << order[i] << " / " << order[j];
    }
  }
}

TEST(TextOrderTest, AccentsDecideOnlyBetweenEqualLettersCaseAndTrailingBlanksNever) {
  EXPECT_EQ(compareTexts("ÁRBOL ñ", "árbol Ñ "), 0);
  EXPECT_EQ(compareTexts("", "   "), 0);
  EXPECT_NE(compareTexts(" a", "a"), 0);
  EXPECT_LT(compareTexts("mas", "más"), 0);
  EXPECT_LT(compareTexts("más a", "mas b"), 0);
  EXPECT_LT(compareTexts("cigüeña", "cigueñas"), 0);
  // Combining accents count as the letters they make, and by their code without a letter.
  EXPECT_EQ(compareTexts("can\u0303a", "caña"), 0);
  EXPECT_EQ(compareTexts("e\u0301", "É"), 0);
  EXPECT_GT(compareTexts("\u0301", "z"), 0);
}

TEST(TextOrderTest, NamesIgnoreTheCaseOfAsciiLettersOnly) {
  EXPECT_TRUE(sameName("Lca_ID", "lca_id"));
  EXPECT_FALSE(sameName("Ñ", "ñ"));
  EXPECT_FALSE(sameName("[", "{"));
}

TEST(Utf8Test, CountsAndCutsCharactersAnInvalidByteIsOneOfItsOwn) {
  const std::string text = "añ€😀b";
  EXPECT_EQ(characterCount(text), 5U);
  EXPECT_EQ(firstCharacters(text, 3), "añ€");
  EXPECT_EQ(firstCharacters(text, 99), text);
  EXPECT_EQ(byteOffset(text, 4), text.size() - 1);
  EXPECT_EQ(byteOffset(text, 6), text.size());
  EXPECT_EQ(toUtf8(toCodePoints(text)), text);
  const std::pair<std::string, std::size_t> cases[] = {
      {"a\xFF!", 3},           {"\xC3", 1}, {"\xE2\x82", 2}, {"\xC0\x80", 2}, {"\xED\xA0\x80", 3},
      {"\xF4\x90\x80\x80", 4}, {"\xC3(", 2}};
  for (const auto& [invalid, characters] : cases) {
    EXPECT_EQ(characterCount(invalid), characters);
    EXPECT_EQ(firstCharacters(invalid, 1).size(), 1U);
  }
  EXPECT_EQ(toCodePoints("\xFF"), U"\uFFFD");
  EXPECT_EQ(toUtf8(char32_t{0xD800}), "\uFFFD");
}

TEST(ErrorTest, TheSubjectIsOneShortLine) {
  EXPECT_EQ(subjectOf(" update\n  Cav\tset Cav_IdLca = 1 "), "update Cav set Cav_IdLca = 1");
  EXPECT_EQ(subjectOf(std::string(59, 'a') + "ñandú"), std::string(59, 'a') + "ñ");
}

TEST(SystemWords, AreSpanishOrTellTheNumber) {
  EXPECT_EQ(systemWords(ENOSPC), "el disco está lleno");
  EXPECT_EQ(systemWords(EACCES), systemWords(EPERM));
  EXPECT_EQ(systemWords(std::make_error_code(std::errc::no_such_file_or_directory)), "no existe");
  EXPECT_EQ(systemWords(EPROTO), "error " + std::to_string(EPROTO) + " del sistema");
}

}  // namespace
}  // namespace korvantes::ado
