#include "runtime/screen/conversions.h"

#include <cmath>
#include <cstdlib>
#include <gmock/gmock.h>
#include <sstream>

#include "runtime/ado/error.h"

namespace korvantes::screen {
namespace {

using ado::Date;
using ado::Decimal;
using ado::Variant;

const Regional kSpanish = Regional::named("es-ES");
const Regional kEnglish = Regional::named("en-US");

using Texts = std::initializer_list<const char*>;

/// What a function makes of each value, with a bar in between.
template <class Value, class Convert>
std::string each(std::initializer_list<Value> values, Convert convert) {
  std::ostringstream all;
  for (const Value& value : values) all << convert(value) << '|';
  return all.str();
}

TEST(Numbers, AreReadUnderTheRegionalSettings) {
  const auto reading = [](const Regional& regional) {
    return [&regional](const char* text) {
      const auto number = parseNumber(text, regional);
      return number ? CStr(*number, kEnglish) : "no";
    };
  };
  const Texts texts = {"12,5",     "12.5",  " -3 ",       "+7",       "1.234,56",
                       "1,234.56", "1.234", "12.345.678", "1234.567", "1.23.456",
                       ",5",       "5,",    "1E3",        "2e-2",     "0.125"};
  EXPECT_EQ(each(texts, reading(kSpanish)),
            "12.5|no|-3|7|1234.56|no|1234|12345678|no|no|0.5|5|1000|0.02|no|");
  EXPECT_EQ(each(texts, reading(kEnglish)),
            "no|12.5|-3|7|no|1234.56|1.234|no|1234.567|no|no|no|1000|0.02|0.125|");
  for (const char* text :
       {",", "", "   ", "1E", "12a", "--1", "1 2", "0x10", "1E999", "inf", "-", "3;DROP"})
    EXPECT_FALSE(IsNumeric(text, kSpanish)) << text;
}

TEST(Numbers, AreReadExactlyWhereEveryDigitCounts) {
  EXPECT_EQ(CDec("90071992547409,93", kSpanish), Decimal(9007199254740993, 2));
  EXPECT_EQ(each({"-1.234,50", ",05", "5,", "1,234567E+15", "1E-02"},
                 [](const char* text) { return CStr(CDec(text, kSpanish), kEnglish); }),
            "-1234.5|0.05|5|1234567000000000|0.01|");
  for (const char* text : {"", "x", "1.5", "99999999999999999999", "1E19", "1E99999999999"})
    EXPECT_THROW(CDec(text, kSpanish), ado::ConversionError) << text;
}

TEST(Numbers, BecomeWholeHalfToEvenAndOnlyWithin32Bits) {
  EXPECT_EQ(each({"0007", "2,5", "3,5", "-2,5", "2147483647"},
                 [](const char* text) { return CLng(text, kSpanish); }),
            "7|2|4|-2|2147483647|");
  for (const char* text : {"2147483647,5", "-2147483649", "99999999999999999999", "", "x"})
    EXPECT_THROW(CLng(text, kSpanish), ado::ConversionError) << text;
  EXPECT_THAT([] { CDbl("abc", kSpanish); },
              testing::ThrowsMessage<ado::ConversionError>("«abc» no es un número"));
  // At the beginning of a text, whatever the settings.
  EXPECT_EQ(each({"03 ", "99 - Otros", " 1.5x", "1,5", "abc", "-2e1z", "1e", "", "-", "5."}, Val),
            "3|99|1.5|1|0|-20|1|0|0|5|");
}

TEST(Values, HaveAGeneralForm) {
  const auto general = [](const Variant& value) { return CStr(value, kSpanish); };
  EXPECT_EQ(each<Variant>({0.0, -0.0, -1234.5, 0.1 + 0.2, 0.001, 1.25e-20, 1.5e20, 2.0 / 3,
                           123456789012345.0, 999999999999999.9, -42},
                          general),
            "0|0|-1234,5|0,3|0,001|1,25E-20|1,5E+20|0,666666666666667|123456789012345|1E+15|-42|");
  // Decimals have more digits than a double.
  EXPECT_EQ(each<Variant>({Variant(), true, false, "año", Date{2026, 2, 3}, Decimal::money(1000000),
                           Decimal(123456789012345678, 2), Decimal(-5, 18)},
                          general),
            "|Verdadero|Falso|año|03/02/2026|100|1234567890123456,78|-0,000000000000000005|");
  EXPECT_EQ(CStr(-0.5, kEnglish), "-0.5");
  EXPECT_THROW(general(std::nan("")), ado::ConversionError);
  EXPECT_THROW(general(ado::Bytes(1)), ado::ConversionError);
}

TEST(Values, AreWrittenInMasks) {
  EXPECT_EQ(each<Variant>({1.005, -0.005, -0.004, Variant(), Decimal(10050, 4), "12", 0.5,
                           Decimal(-50, 4), 0.999, 1e20},
                          [](const Variant& value) { return Format(value, "0.00", kSpanish); }),
            "1,01|-0,01|0,00||1,01|12|0,50|-0,01|1,00|100000000000000000000,00|");
  EXPECT_EQ(each({"#,###,##0.00 ", "0000000000", "000", "##0.0", "0.####", "Total: 0 €", ""},
                 [](const char* mask) { return Format(1234567.891, mask, kSpanish); }),
            "1.234.567,89 |0001234568|1234568|1234567,9|1234567,891|Total: 1234568 €|1234567,891|");
  EXPECT_EQ(Format(-1234567.891, "#,##0.00", kEnglish), "-1,234,567.89");
  EXPECT_EQ(Format(-3, "Total: 0", kSpanish) + Format(0, "###", kSpanish), "-Total: 3");
  EXPECT_EQ(Format(Decimal(9007199254740993, 2), "#,##0.00", kSpanish), "90.071.992.547.409,93");
  EXPECT_EQ(Format(Date{2026, 2, 3}, "dd/mm/yyyy d/m/yy", kSpanish), "03/02/2026 3/2/26");
  EXPECT_EQ(Format(Date{1, 2, 3}, "yyyy-mm-dd", kSpanish), "0001-02-03");
}

TEST(Dates, AreReadDayFirst) {
  EXPECT_EQ(each({"28/02/2026", " 1/2/2026 ", "1-2-29", "1.2.30", "01/01/00", "29/02/2024"},
                 [](const char* text) { return toDate(text).value().dayFirst(); }),
            "28/02/2026|01/02/2026|01/02/2029|01/02/1930|01/01/2000|29/02/2024|");
  for (const char* text : {"29/02/2026", "31/04/2026", "02/13/2026", "00/01/2026", "01/01/0000",
                           "1/2-2026", "1/2/026", "01/02/20266", "2026-02-28", "28022026", "28/02",
                           "28/02/", "1/2/3/4", "a1/02/2026", "1/2/2026'; --", ""})
    EXPECT_FALSE(IsDate(text)) << text;
}

TEST(RegionalSettings, AreFoundByTheNamesThatMachinesUse) {
  const auto separators = [](const char* name) {
    const Regional regional = Regional::named(name);
    return std::string{regional.decimalSeparator, regional.thousandsSeparator};
  };
  EXPECT_EQ(each({"es-ES", "es_ES.UTF-8", "ca_ES@euro", "eu-es", "de_DE.utf8", "es"}, separators),
            ",.|,.|,.|,.|,.|,.|");
  EXPECT_EQ(each({"en_GB.UTF-8", "en-US", "es-MX", "en", "fr-FR"}, separators), ".,|.,|.,|.,|, |");
  for (const char* name : {"", "xx-XX", "C", "klingon"})
    EXPECT_THROW(Regional::named(name), std::invalid_argument) << name;
  // Those of the machine, Spanish where it has none.
  const auto machine = [](const char* numeric, const char* lang) {
    unsetenv("LC_ALL");
    setenv("LC_NUMERIC", numeric, 1);
    setenv("LANG", lang, 1);
    return Regional::ofMachine().name;
  };
  EXPECT_EQ(machine("", "") + machine("de_DE.UTF-8", "en_US.UTF-8"), "es-ESde-DE");
  EXPECT_EQ(machine("", "en_GB.UTF-8") + machine("", "ja_JP.UTF-8"), "en-GBes-ES");
  setenv("LC_ALL", "C", 1);
  EXPECT_EQ(Regional::ofMachine().name, "es-ES");
  for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) unsetenv(variable);
}

}  // namespace
}  // namespace korvantes::screen
