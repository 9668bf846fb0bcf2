#include <gmock/gmock.h>

#include "tests/sqlite/engine_fixture.h"

namespace korvantes::testing_engines {
namespace {

using ResultTest = EngineTest;

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
  EXPECT_EQ(
      rows("select * from Tipos order by T_Id"),
      (Rows{"1|True|ñ  |largo|3 bytes|29/02/2024|-1.500", "2|False|NULL|NULL|NULL|NULL|NULL"}));
  const auto bytes = run("select T_Bytes from Tipos where T_Bit = 1").Fields(0).Value().bytes();
  EXPECT_EQ(bytes, (ado::Bytes{std::byte{0}, std::byte{0xFF}, std::byte{0x10}}));
}

TEST_F(ResultTest, OnlyASelectGivesAnOpenResult) {
  run("insert into Fav (Fav_Id) values (1), (2)");
  long long changed = 0;
  EXPECT_FALSE(connection_->Execute("update Fav set Fav_Numero = 7", &changed).isOpen());
  EXPECT_EQ(changed, 2);
  connection_->Execute("delete from Fav where Fav_Id = 99", &changed);
  EXPECT_EQ(changed, 0);
  EXPECT_TRUE(connection_->Execute("select Fav_Id from Fav", &changed).isOpen());
  EXPECT_EQ(changed, -1);
}

TEST_F(ResultTest, FailuresHaveTheirKindAndOnlyOurWords) {
  run("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 33)");
  run("insert into Age (AGE_ID) values (1)");
  const auto other = connect();
  other->BeginTrans();
  const struct {
    const char* statement;
    ErrorKind kind;
    const char* words;
  } cases[] = {
      {"update Cav set Cav_IdLca = 1", ErrorKind::Busy,
       "La base de datos está ocupada por otro usuario"},
      {"insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (2, 33)", ErrorKind::Duplicate,
       "Ya existe en la tabla «Lcd» una fila con el mismo valor de «Lcd_IdCav»"},
      {"insert into Lcd (Lcd_IdLca) values (2)", ErrorKind::Constraint, "«Lcd_IdCav»"},
      {"update Lca set Lca_Id = 1", ErrorKind::Constraint, ""},
      {"update Age set AGE_CP = '123456789'", ErrorKind::Overflow, ""},
      {"selec 1", ErrorKind::Syntax, ""},
      {"select * from Nada", ErrorKind::Syntax, ""},
      {"select AGE_ID * 2147483647 * 2 as n from Age", ErrorKind::Overflow, ""},
  };
  for (const auto& each : cases) {
    const auto error = failure(each.statement);
    EXPECT_EQ(error.kind(), each.kind) << each.statement << ": " << error.what();
    EXPECT_THAT(error.what(), testing::HasSubstr(each.words));
    if (other->inTransaction()) other->RollbackTrans();
  }
  constexpr long kDivisionByZero = 8134;
  EXPECT_EQ(failure("SELECT 1 / (AGE_ID - 1) FROM Age").number(), kDivisionByZero);
  // The message of one failure does not stick to the next.
  EXPECT_NE(failure("insert into Lcd (Lcd_IdLca, Lcd_IdCav) values (1, 33)").number(),
            kDivisionByZero);
}

}  // namespace
}  // namespace korvantes::testing_engines
