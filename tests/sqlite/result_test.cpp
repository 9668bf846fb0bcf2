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

TEST_F(ResultTest, ColumnsBearTheNamesOfTheStatementAndTheTypesOfTheTables) {
  const auto rows =
      run("select AGE_id,age_nom,lca.*,(select count(*) from Lcd) as Notas "
          "from lca inner join age on lca_idag=age_id");
  const struct {
    std::size_t position;
    const char* name;
    ado::FieldType type;
    int size;
    int scale;
  } cases[] = {{0, "AGE_id", ado::FieldType::Integer, 0, 0},
               {1, "age_nom", ado::FieldType::VarChar, 100, 0},
               {4, "Lca_Fecha", ado::FieldType::Date, 0, 0},
               {10, "Lca_Base", ado::FieldType::Currency, 0, 4},
               {11, "Lca_PorIva", ado::FieldType::Numeric, 0, 2},
               {16, "Notas", ado::FieldType::Integer, 0, 0}};
  for (const auto& [position, name, type, size, scale] : cases) {
    const auto& definition = rows.definitions().at(position);
    EXPECT_EQ(definition.name, name);
    EXPECT_EQ(definition.type, type) << name;
    EXPECT_EQ(definition.size, size) << name;
    EXPECT_EQ(definition.scale, scale) << name;
  }
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
  for (const char* date : {"'31/02/2026'", "'02/13/2026'", "'ayer'", "'2026-02-01x'"}) {
    failure("SELECT Fav_Id FROM Fav WHERE Fav_Fecha <= " + std::string(date));
    failure("update Fav set Fav_Fecha = " + std::string(date));
  }
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

TEST_F(ResultTest, AFailureBearsTheServersNumberAndStoresNothing) {
  invoice(1, "NULL");
  constexpr long kDivisionByZero = 8134;
  EXPECT_EQ(failure("SELECT 1 / (Fav_Numero - 101) FROM Fav"), kDivisionByZero);
  // The words of one failure do not stick to the next.
  run("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 1)");
  EXPECT_NE(failure("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 1)"), kDivisionByZero);
  failure("insert into Lav (Lav_Id, Lav_IdCav, Lav_Importe) values (3, 1, 922337203685477.5808)");
  failure("insert into Lav (Lav_Id, Lav_IdCav, Lav_Comi) values (3, 1, 1000)");
  EXPECT_EQ(cell("SELECT COUNT(Lav_Id) FROM Lav"), "0");
}

TEST_F(ResultTest, AResultDoesNotFollowTheDatabase) {
  invoice(1, "NULL");
  invoice(2, "NULL");
  const auto before = run("SELECT Fav_Id FROM Fav");
  run("delete from Fav");
  EXPECT_EQ(before.RecordCount(), 2U);
  EXPECT_EQ(before.cell(1, 0).asLong(), 2);
}

TEST_F(ResultTest, EachLiteralOfARepeatedTextIsItsOwn) {
  for (int id = 1; id <= 40; ++id) invoice(id, "'" + std::to_string(1 + id % 28) + "/03/2026'");
  for (int id = 40; id >= 1; --id) {
    EXPECT_EQ(cell("SELECT Fav_Numero FROM Fav WHERE Fav_Id = " + std::to_string(id)),
              std::to_string(100 + id));
  }
  EXPECT_EQ(cell("SELECT COUNT(*) FROM Fav WHERE Fav_Serie = 'A' AND Fav_Id = 3"), "1");
  EXPECT_EQ(cell("SELECT COUNT(*) FROM Fav WHERE Fav_Serie = 'B' AND Fav_Id = 3"), "0");
}

}  // namespace
}  // namespace korvantes::testing_engines
