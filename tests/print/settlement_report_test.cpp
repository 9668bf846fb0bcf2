#include <gmock/gmock.h>
#include <random>

#include "tests/print/print_world.h"

namespace korvantes::office {
namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

TEST(SettlementReport, ShowsTheSettlementAsItIsStored) {
  PrintWorld world;
  world.invoice(11);
  world.note(1, 11, "10.05", "7.5");
  world.sql("INSERT INTO Lav (Lav_Id, Lav_IdCav, Lav_Importe, Lav_Comi) VALUES (2, 1, 20.05, 7.5)");
  world.sql("UPDATE Cav SET Cav_Dto1 = 10, Cav_DTO2 = 5, Cav_NFiscal = 'Peña, S.A.'");
  const std::string words(72, 'W');  // one word, wider than the page
  world.settle({1},
               "'24/11/2026', '31/10/2026', 1, 0, 1.93, 21, 0.41, 15, 0.29, 2.05, "
               "'Pagar por banco\r\n" +
                   words + "'");
  const std::string text = world.settlementText(1);

  EXPECT_THAT(
      missing(text,
              {"Liquidación de comisiones Nº 1", "Agente 7 Núñez e Hijos Fecha 24/11/2026",
               "NIF 12345678Z Facturas hasta 31/10/2026",
               "F/11 01/10/2026 A/1 Peña, S.A. 25,74 7,50 1,93", "Suma de 1 albarán 25,74 1,93",
               "Base de comisiones 1,93", "Más IVA 21,00 % 0,41", "Menos retención 15,00 % 0,29",
               "Total de la liquidación 2,05", "Pagar por banco",
               "Liquidación 1 · Impreso el 24/11/2026 Página 1 de 1"}),
      IsEmpty());
  EXPECT_THAT(text, HasSubstr("Cobradas"));
  EXPECT_EQ(count(text, "W"), 72U);
  EXPECT_THAT(text, Not(HasSubstr("ha cambiado")));
  EXPECT_EQ(world.delivered.back().file, world.file("Liquidación 1.pdf"));
}

TEST(SettlementReport, ShowsTwoThousandNotesToTheCent) {
  constexpr int kNotes = 2000;
  PrintWorld world;
  std::mt19937 dice(2026);
  std::vector<int> notes;
  std::vector<std::string> lines;
  long net = 0, commission = 0;
  for (int note = 1; note <= kNotes; ++note) {
    const long cents = 100 + static_cast<long>(dice() % 1'000'000);
    // 7,5 %, to four decimals and then to cents; shown with the percentage that this makes.
    const long part = ((cents * 75 + 5) / 10 + 50) / 100;
    const long percent = (2 * part * 10'000 + cents) / (2 * cents);
    world.invoice(note);
    world.note(note, note, std::to_string(cents) + " / 100.0", "7.5");
    const std::string number = std::to_string(note);
    lines.push_back("F/" + number + " 01/10/2026 A/" + number + " Cliente " + number + " " +
                    amountText(cents) + " " + amountText(percent) + " " + amountText(part));
    notes.push_back(note);
    net += cents;
    commission += part;
  }
  lines.push_back("Suma de 2000 albaranes " + amountText(net) + " " + amountText(commission));
  lines.push_back("Total de la liquidación " + amountText(commission));
  const std::string base = std::to_string(commission) + " / 100.0";
  world.settle(notes, "Null, Null, 0, 1, " + base + ", 0, 0, 0, 0, " + base + ", Null");
  const std::string text = world.settlementText(1);

  EXPECT_EQ(world.delivered.back().rows, notes.size());
  EXPECT_THAT(missing(text, lines), IsEmpty());
  EXPECT_THAT(text, Not(HasSubstr("ha cambiado")));
  const std::size_t pages = count(text, "\f");
  EXPECT_EQ(count(text, " de " + std::to_string(pages) + "\n"), pages);
  EXPECT_GE(count(text, "Albarán"), pages - 1);
}

TEST(SettlementReport, ShowsWhatTimeHasLeftOfASettlement) {
  PrintWorld world;
  world.invoice(11);
  world.note(1, 11, "100", "5");
  world.note(2, 11, "-33.33", "5");
  world.note(3, 99, "10", "1");
  world.note(4, 99, "10", "1");
  world.sql("DELETE FROM Lav WHERE Lav_Id = 4");
  world.sql("UPDATE Cav SET Cav_NFiscal = ' ' WHERE Cav_Id = 1");
  const std::string name = "Representaciones " + std::string(83, 'W');
  world.sql("UPDATE Cav SET Cav_NFiscal = '" + name + "' WHERE Cav_Id = 2");
  world.sql("UPDATE Age SET AGE_NOM = '" + name + "'");
  world.settle({1, 2, 3, 4, 77}, "Null, Null, 0, 0, 5, 21, 1.05, 0, 0, 6.05, ''");
  const std::string text = world.settlementText(1);

  EXPECT_THAT(missing(text, {"F/11 01/10/2026 A/1 Cliente de factura 100,00 5,00 5,00",
                             "Factura F/11: 2 albaranes 66,67 3,33",
                             "sin factura A/3 Cliente 3 10,00 1,00 0,10",
                             "sin factura A/4 Cliente 4 0,00 0,00 0,00", "sin factura ya no existe",
                             "Suma de 5 albaranes 76,67 3,43", "Base de comisiones 5,00"}),
              IsEmpty());
  for (const char* words :
       {"W… -33,33 5,01 -1,67\n", "suman hoy 3,43", "Sin fecha", "Sin límite", "Todas"})
    EXPECT_THAT(text, HasSubstr(words));
  EXPECT_THAT(text, Not(HasSubstr("Observaciones")));
}

TEST(SettlementReport, SaysThatThereIsNothing) {
  PrintWorld world;
  world.settle({}, "Null, Null, Null, Null, Null, Null, Null, Null, Null, Null, Null");
  EXPECT_THAT(world.settlementText(1), HasSubstr("No hay albaranes"));
  EXPECT_THAT(world.settlementText(2), HasSubstr("No hay datos"));
}

}  // namespace
}  // namespace korvantes::office
