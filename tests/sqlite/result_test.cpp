#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

class ResultTest : public EngineTest {
 protected:
  void invoice(int id, const std::string& date) {
    run("insert into Fav (Fav_Id, Fav_Serie, Fav_Numero, Fav_Fecha, Fav_BIva1, Fav_Biva2) values "
        "(" +
        std::to_string(id) + ", 'A', " + std::to_string(100 + id) + ", " + date + ", 1.5, 2)");
  }
};

TEST_F(ResultTest, ColumnsHaveTheNamesOfTheStatementAndTheTypesOfTheTables) {
  const auto found = run("select AGE_id,age_nom,Lca_Fecha,Lca_Base,Lca_PorIva,"
                         "(select count(*) from Lcd) as Notas "
                         "from lca inner join age on lca_idag=age_id")
                         .definitions();
  using ado::FieldType;
  const ado::FieldDefinition expected[] = {
      {"AGE_id", FieldType::Integer, 0, 0},     {"age_nom", FieldType::VarChar, 100, 0},
      {"Lca_Fecha", FieldType::Date, 0, 0},     {"Lca_Base", FieldType::Currency, 0, 4},
      {"Lca_PorIva", FieldType::Numeric, 0, 2}, {"Notas", FieldType::Integer, 0, 0}};
  const auto all = [](const ado::FieldDefinition& each) {
    return std::tie(each.name, each.type, each.size, each.scale);
  };
  ASSERT_EQ(found.size(), std::size(expected));
  for (std::size_t i = 0; i < found.size(); ++i) EXPECT_EQ(all(found[i]), all(expected[i])) << i;
}

TEST_F(ResultTest, EveryTypeComesBackAsItsKind) {
  run("create table Tipos (T_Id int not null primary key, T_Bit bit null, T_Char char(3) null, "
      "T_Texto varchar(max) null, T_Bytes varbinary(4) null, T_Dia date null, "
      "T_Dec decimal(9,3) null)");
  run("insert into Tipos values (1, 1, 'ñ', 'largo', 0x00FF10, '29/02/2024', -1.5)");
  run("insert into Tipos (T_Id, T_Bit) values (2, 0)");
  EXPECT_EQ(rows("select * from Tipos order by T_Id"),
            (std::vector<std::string>{"1|True|ñ  |largo|3 bytes|29/02/2024|-1.500",
                                      "2|False|NULL|NULL|NULL|NULL|NULL"}));
  const auto bytes = run("select T_Bytes from Tipos where T_Bit = 1").Fields(0).Value().bytes();
  EXPECT_EQ(bytes, (ado::Bytes{std::byte{0}, std::byte{0xFF}, std::byte{0x10}}));
}

TEST_F(ResultTest, DatesAreReadDayFirst) {
  invoice(1, "'01/02/2026'");
  invoice(2, "'2/2/2026 '");
  invoice(3, "NULL");
  EXPECT_EQ(rows("SELECT Fav_Id,Fav_Fecha FROM Fav ORDER BY Fav_Fecha desc"),
            (std::vector<std::string>{"2|02/02/2026", "1|01/02/2026", "3|NULL"}));
  EXPECT_EQ(rows("SELECT Fav_Id FROM Fav WHERE Fav_Fecha BETWEEN '01/02/2026 ' AND '01/02/2026' "),
            std::vector<std::string>{"1"});
  EXPECT_EQ(cell("SELECT COUNT(*) FROM Fav WHERE Fav_Fecha > '01/01/2026'"), "2");
}

TEST_F(ResultTest, OnlyASelectGivesAnOpenResult) {
  invoice(1, "NULL");
  invoice(2, "NULL");
  long long changed = 0;
  auto rows = connection_->Execute("update Fav set Fav_Numero = 7 where Fav_Id > 0", &changed);
  EXPECT_FALSE(rows.isOpen());
  EXPECT_EQ(changed, 2);
  connection_->Execute("delete from Fav where Fav_Id = 99", &changed);
  EXPECT_EQ(changed, 0);
  rows = connection_->Execute("select Fav_Id from Fav", &changed);
  EXPECT_TRUE(rows.isOpen());
  EXPECT_EQ(changed, -1);
}

TEST_F(ResultTest, AFailureHasTheServersNumberAndStoresNothing) {
  invoice(1, "NULL");
  constexpr long kDivisionByZero = 8134;
  EXPECT_EQ(failure("SELECT 1 / (Fav_Numero - 101) FROM Fav"), kDivisionByZero);
  // The message of one failure does not stick to the next.
  run("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 1)");
  EXPECT_NE(failure("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 1)"), kDivisionByZero);
  failure("insert into Lav (Lav_Id, Lav_IdCav, Lav_Importe) values (3, 1, 922337203685477.5808)");
  failure("insert into Lav (Lav_Id, Lav_IdCav, Lav_Comi) values (3, 1, 1000)");
  EXPECT_EQ(cell("SELECT COUNT(Lav_Id) FROM Lav"), "0");
}

TEST_F(ResultTest, EachLiteralOfARepeatedTextIsItsOwn) {
  for (int id = 1; id <= 40; ++id) invoice(id, "NULL");
  for (int id = 40; id >= 1; --id) {
    EXPECT_EQ(
        cell("SELECT Fav_Numero FROM Fav WHERE Fav_Serie = 'A' AND Fav_Id = " + std::to_string(id)),
        std::to_string(100 + id));
  }
  EXPECT_EQ(cell("SELECT COUNT(*) FROM Fav WHERE Fav_Serie = 'B' AND Fav_Id = 3"), "0");
}

TEST_F(ResultTest, ComparingTextsIgnoresCaseAndTrailingBlanksButNotLetters) {
  int id = 0;
  for (const char* name : {"Muñoz", "munoz ", "MUÑOZ  ", "O''Neill"})
    run("insert into Age (AGE_ID, AGE_NOM) values (" + std::to_string(++id) + ", '" + name + "')");
  const std::pair<const char*, std::vector<std::string>> cases[] = {
      {"= 'muñoz'", {"1", "3"}},
      {"= 'MUNOZ'", {"2"}},
      {"= 'o''NEILL'", {"4"}},
      {"> 'munozz' and AGE_NOM < 'n'", {"1", "3"}}};
  for (const auto& [condition, found] : cases) {
    EXPECT_EQ(
        rows(std::string("select AGE_ID from Age where AGE_NOM ") + condition + " order by AGE_ID"),
        found);
  }
}

}  // namespace
}  // namespace korvantes::testing_engines
