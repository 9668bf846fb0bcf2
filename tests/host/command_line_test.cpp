#include "host/command_line.h"

#include <functional>
#include <gtest/gtest.h>

#include "scripts/failure.h"
#include "scripts/printed_values.h"
#include "scripts/whole_number.h"

namespace korvantes::host {
namespace {

/// What a call gives, or the words of its failure.
std::string outcomeOf(const std::function<std::string()>& call) {
  try {
    return call();
  } catch (const Failure& failure) {
    return failure.what();
  }
}

TEST(CommandLine, ReadsOptionsOrderAndArguments) {
  const CommandLine line =
      readCommandLine({"--base", "sqlite:/a b.db", "--hoy=24/11/2026", "--regional", "en-US",
                       "comision", "3", "-1", "0", "--salida", "/tmp/x"});
  EXPECT_EQ(line.base, "sqlite:/a b.db");
  EXPECT_EQ(line.today, (ado::Date{2026, 11, 24}));
  EXPECT_EQ(line.regional.value().decimalSeparator, '.');
  EXPECT_EQ(line.output, "/tmp/x");
  EXPECT_EQ(line.order, "comision");
  EXPECT_EQ(line.arguments, (std::vector<std::string>{"3", "-1", "0"}));
  const CommandLine empty = readCommandLine({});
  EXPECT_FALSE(empty.base || empty.today || empty.regional || !empty.order.empty());
  EXPECT_EQ(readCommandLine({"sql", "-"}).arguments, std::vector<std::string>{"-"});
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  const std::pair<std::vector<std::string>, const char*> cases[] = {
      {{"--bas", "x"}, "no se conoce la opción «--bas»; véase --ayuda"},
      {{"--base"}, "--base: falta el valor"},
      {{"--salida", "", "crear"}, "--salida: falta la carpeta"},
      {{"--hoy", "31/02/2026"}, "--hoy: «31/02/2026» no es una fecha dd/mm/aaaa"},
      {{"--hoy", "2026-02-01"}, "--hoy: «2026-02-01» no es una fecha dd/mm/aaaa"},
      {{"--regional", "xx-YY"}, "--regional: no se conocen los ajustes regionales «xx-YY»"}};
  for (const auto& [arguments, words] : cases)
    EXPECT_EQ(outcomeOf([&] { return readCommandLine(arguments).order; }), words);
}

TEST(CommandLine, ReadsWholeNumbersWithinTheirLimits) {
  const auto read = [](const char* text) {
    return outcomeOf(
        [&] { return std::to_string(scripts::readWholeNumber("ID", text, -32768, 32767)); });
  };
  EXPECT_EQ(read("-32768") + read("007"), "-327687");
  for (const char* text : {"", " 1", "1 ", "1.0", "1,5", "0x10", "+1", "--1", "1e3", "cinco"})
    EXPECT_EQ(read(text), "ID: " + inQuotes(text) + " no es un número entero");
  for (const char* text : {"32768", "-32769", "99999999999999999999"})
    EXPECT_EQ(read(text), "ID: " + inQuotes(text) + " está fuera de los límites, -32768 a 32767");
}

TEST(FailureWords, StandOnOneLine) {
  EXPECT_EQ(onOneLine("Error registrando liquidacion:\r\nla base\testá ocupada\n"),
            "Error registrando liquidacion: la base está ocupada");
  EXPECT_EQ(onOneLine("\n\x1B[31mrojo\x7F"), "[31mrojo");
}

TEST(PrintedValues, EachKindHasOneForm) {
  using ado::Decimal;
  using ado::Variant;
  std::string printed;
  for (const Variant& value :
       {Variant(), Variant(true), Variant(false), Variant(INT64_MIN), Variant(Decimal::money(-5)),
        Variant(Decimal(2100, 2)), Variant(Decimal(3, 0)), Variant(1.5), Variant(" Peña, S.L. "),
        Variant(ado::Date{2026, 2, 8}), Variant("a\tb\nc\r\nd\\te"), Variant(ado::Bytes{}),
        Variant(ado::Bytes{std::byte{0x00}, std::byte{0x0F}, std::byte{0xAB}})})
    printed += scripts::printedValue(value) + "|";
  EXPECT_EQ(printed,
            "NULL|1|0|-9223372036854775808|-0.0005|21.00|3|1.5| Peña, S.L. |08/02/2026|"
            "a\\tb\\nc\\r\\nd\\\\te|0x|0x000FAB|");
}

}  // namespace
}  // namespace korvantes::host
