#include "host/command_line.h"

#include <gtest/gtest.h>

#include "scripts/failure.h"
#include "scripts/whole_number.h"

namespace korvantes::host {
namespace {

std::string failureOf(const std::vector<std::string>& arguments) {
  try {
    readCommandLine(arguments);
  } catch (const Failure& failure) {
    return failure.what();
  }
  return "(ninguno)";
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
  EXPECT_TRUE(empty.order.empty());
  EXPECT_FALSE(empty.base || empty.today || empty.regional);

  EXPECT_EQ(readCommandLine({"sql", "-"}).arguments, std::vector<std::string>{"-"});
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  EXPECT_EQ(failureOf({"--bas", "x"}), "no se conoce la opción «--bas»; véase --ayuda");
  EXPECT_EQ(failureOf({"--base"}), "--base: falta el valor");
  EXPECT_EQ(failureOf({"--salida", "", "crear"}), "--salida: falta la carpeta");
  for (const std::string date : {"31/02/2026", "2026-02-01"})
    EXPECT_EQ(failureOf({"--hoy", date}), "--hoy: «" + date + "» no es una fecha dd/mm/aaaa");
  EXPECT_EQ(failureOf({"--regional", "xx-YY"}),
            "--regional: no se conocen los ajustes regionales «xx-YY»");
}

TEST(CommandLine, ReadsWholeNumbersWithinTheirLimits) {
  const auto read = [](const char* text) -> std::string {
    try {
      return std::to_string(scripts::readWholeNumber("ID", text, -32768, 32767));
    } catch (const Failure& failure) {
      return failure.what();
    }
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

}  // namespace
}  // namespace korvantes::host
