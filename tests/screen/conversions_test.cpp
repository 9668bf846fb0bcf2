#include "runtime/screen/conversions.h"

#include <cmath>
#include <gtest/gtest.h>

#include "runtime/ado/error.h"

namespace korvantes::screen {
namespace {

const Regional kSpanish = Regional::named("es-ES");
const Regional kEnglish = Regional::named("en-US");

TEST(Numbers, AreReadUnderTheRegionalSettings) {
  const struct {
    const char* text;
    std::optional<double> spanish, english;
  } cases[] = {{"12,5", 12.5, {}},
               {"12.5", {}, 12.5},
               {" -3 ", -3.0, -3.0},
               {"+7", 7.0, 7.0},
               {"1.234,56", 1234.56, {}},
               {"1,234.56", {}, 1234.56},
               {"1.234", 1234.0, 1.234},
               {"12.345.678", 12345678.0, {}},
               {"1234.567", {}, 1234.567},
               {"1.23.456", {}, {}},
               {",5", 0.5, {}},
               {"5,", 5.0, {}},
               {"1E3", 1000.0, 1000.0},
               {"2e-2", 0.02, 0.02},
               {"0.125", {}, 0.125}};
  for (const auto& c : cases) {
    EXPECT_EQ(parseNumber(c.text, kSpanish), c.spanish) << c.text;
    EXPECT_EQ(parseNumber(c.text, kEnglish), c.english) << c.text;
    EXPECT_EQ(IsNumeric(c.text, kSpanish), c.spanish.has_value()) << c.text;
  }
  for (const char* text :
       {",", "", "   ", "1E", "12a", "--1", "1 2", "0x10", "1E999", "inf", "-", "3;DROP"})
    EXPECT_FALSE(IsNumeric(text, kSpanish)) << text;
}

TEST(Numbers, AreReadExactlyWhereEveryDigitCounts) {
  const struct {
    const char *text, *exact;
  } cases[] = {{"90071992547409,93", "90071992547409.93"},
               {"-1.234,50", "-1234.50"},
               {",05", "0.05"},
               {"5,", "5.0"},
               {"1,234567E+15", "1234567000000000"},
               {"1E-02", "0.01"}};
  for (const auto& c : cases) EXPECT_EQ(CDec(c.text, kSpanish), *ado::Decimal::parse(c.exact));
  for (const char* text : {"", "x", "1.5", "99999999999999999999", "1E19", "1E99999999999"})
    EXPECT_THROW(CDec(text, kSpanish), ado::ConversionError) << text;
}

TEST(Numbers, BecomeWholeHalfToEvenAndOnlyWithin32Bits) {
  EXPECT_EQ(CLng("0007", kSpanish), 7);
  EXPECT_EQ(CLng("2,5", kSpanish), 2);
  EXPECT_EQ(CLng("3,5", kSpanish), 4);
  EXPECT_EQ(CLng("-2,5", kSpanish), -2);
  EXPECT_EQ(CLng("2147483647", kSpanish), 2147483647);
  for (const char* text : {"2147483647,5", "-2147483649", "99999999999999999999", "", "x"})
    EXPECT_THROW(CLng(text, kSpanish), ado::ConversionError) << text;
  try {
    CDbl("abc", kSpanish);
    FAIL();
  } catch (const ado::ConversionError& error) {
    EXPECT_STREQ(error.what(), "«abc» no es un número");
  }
}

TEST(Numbers, AtTheBeginningOfATextAreItsValue) {
  const struct {
    const char* text;
    double value;
  } cases[] = {{"03 ", 3},     {"99 - Otros", 99}, {" 1.5x", 1.5}, {"1,5", 1}, {"abc", 0},
               {"-2e1z", -20}, {"1e", 1},          {"", 0},        {"-", 0},   {"5.", 5}};
  for (const auto& c : cases) EXPECT_EQ(Val(c.text), c.value) << c.text;
}

TEST(Numbers, AreWrittenInTheGeneralForm) {
  const struct {
    double number;
    const char* text;
  } cases[] = {{0, "0"},
               {-0.0, "0"},
               {12.5, "12,5"},
               {-1234.5, "-1234,5"},
               {0.1 + 0.2, "0,3"},
               {1.0 / 3, "0,333333333333333"},
               {2.0 / 3, "0,666666666666667"},
               {100, "100"},
               {123456789012345, "123456789012345"},
               {999999999999999.9, "1E+15"},
               {1.5e20, "1,5E+20"},
               {0.001, "0,001"},
               {1.25e-20, "1,25E-20"}};
  for (const auto& c : cases) EXPECT_EQ(CStr(c.number, kSpanish), c.text) << c.number;
  EXPECT_EQ(CStr(-0.5, kEnglish), "-0.5");
  EXPECT_THROW(CStr(std::nan(""), kSpanish), ado::ConversionError);
}

TEST(Values, HaveAPlainText) {
  EXPECT_EQ(CStr(ado::Variant(), kSpanish), "");
  EXPECT_EQ(CStr(ado::Variant(true), kSpanish), "Verdadero");
  EXPECT_EQ(CStr(ado::Variant(false), kSpanish), "Falso");
  EXPECT_EQ(CStr(ado::Variant(-42), kSpanish), "-42");
  EXPECT_EQ(CStr(ado::Variant(12.5), kSpanish), "12,5");
  EXPECT_EQ(CStr(ado::Variant(ado::Decimal::money(1000000)), kSpanish), "100");
  // More digits than a double has.
  EXPECT_EQ(CStr(ado::Variant(ado::Decimal(123456789012345678, 2)), kSpanish),
            "1234567890123456,78");
  EXPECT_EQ(CStr(ado::Variant(ado::Decimal(-5, 18)), kSpanish), "-0,000000000000000005");
  EXPECT_EQ(CStr(ado::Variant(ado::Date{2026, 2, 3}), kSpanish), "03/02/2026");
  EXPECT_EQ(CStr(ado::Variant("año"), kSpanish), "año");
  EXPECT_THROW(CStr(ado::Variant(ado::Bytes(1)), kSpanish), ado::ConversionError);
}

TEST(Dates, AreReadDayFirst) {
  using ado::Date;
  const struct {
    const char* text;
    Date date;
  } cases[] = {{"28/02/2026", Date{2026, 2, 28}}, {" 1/2/2026 ", Date{2026, 2, 1}},
               {"1-2-29", Date{2029, 2, 1}},      {"1.2.30", Date{1930, 2, 1}},
               {"01/01/00", Date{2000, 1, 1}},    {"29/02/2024", Date{2024, 2, 29}}};
  for (const auto& c : cases) EXPECT_EQ(toDate(c.text), c.date) << c.text;
  for (const char* text : {"29/02/2026", "31/04/2026", "02/13/2026", "00/01/2026", "01/01/0000",
                           "1/2-2026", "1/2/026", "01/02/20266", "2026-02-28", "28022026", "28/02",
                           "28/02/", "1/2/3/4", "a1/02/2026", "1/2/2026'; --", ""})
    EXPECT_FALSE(IsDate(text)) << text;
}

TEST(RegionalSettings, AreFoundByTheNamesThatMachinesUse) {
  const struct {
    const char* name;
    char decimal, thousands;
  } cases[] = {{"es-ES", ',', '.'},       {"es_ES.UTF-8", ',', '.'}, {"ca_ES@euro", ',', '.'},
               {"eu-es", ',', '.'},       {"gl-ES", ',', '.'},       {"pt-PT", ',', '.'},
               {"it-IT", ',', '.'},       {"de_DE.utf8", ',', '.'},  {"fr-FR", ',', ' '},
               {"en_GB.UTF-8", '.', ','}, {"en-US", '.', ','},       {"es-MX", '.', ','},
               {"es_AR.UTF-8", ',', '.'}, {"es", ',', '.'},          {"en", '.', ','}};
  for (const auto& c : cases) {
    const Regional regional = Regional::named(c.name);
    EXPECT_EQ(regional.decimalSeparator, c.decimal) << c.name;
    EXPECT_EQ(regional.thousandsSeparator, c.thousands) << c.name;
  }
  for (const char* name : {"", "xx-XX", "C", "klingon"})
    EXPECT_THROW(Regional::named(name), std::invalid_argument) << name;
}

TEST(RegionalSettings, OfTheMachineAreSpanishWhereItHasNone) {
  const auto machine = [](const char* all, const char* numeric, const char* lang) {
    setenv("LC_ALL", all, 1);
    setenv("LC_NUMERIC", numeric, 1);
    setenv("LANG", lang, 1);
    const std::string name = Regional::ofMachine().name;
    for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) unsetenv(variable);
    return name;
  };
  EXPECT_EQ(machine("", "", ""), "es-ES");
  EXPECT_EQ(machine("C", "", "en_US.UTF-8"), "es-ES");
  EXPECT_EQ(machine("", "de_DE.UTF-8", "en_US.UTF-8"), "de-DE");
  EXPECT_EQ(machine("", "", "en_GB.UTF-8"), "en-GB");
  EXPECT_EQ(machine("", "", "ja_JP.UTF-8"), "es-ES");
}

}  // namespace
}  // namespace korvantes::screen
