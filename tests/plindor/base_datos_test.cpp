#include "outside/plindor/base_datos.h"

#include <gmock/gmock.h>

#include "tests/support/recording_connection.h"

namespace korvantes::plindor {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

struct BaseDatosTest : testing::Test {
  std::shared_ptr<support::RecordingConnection> connection =
      std::make_shared<support::RecordingConnection>();
  BaseDatos service{connection};
  std::string error = "old words";
};

TEST_F(BaseDatosTest, WritesInsertUpdateAndDelete) {
  service.Tabla = "Lcd";
  service.Campos.AgregaCampo("Lcd_IdLca", ListaCampos::Entero, 12, 2);
  service.Campos.AgregaCampo("Lcd_Obs", ListaCampos::Texto, "d'Or", 2);
  service.Condicion = " ";
  EXPECT_TRUE(service.InsertaFila(error));
  EXPECT_EQ(error, "");

  service.LimpiaSentencia(0);
  service.Campos.AgregaCampo("Cav_IdLca", ListaCampos::Literal, "Null", 2);
  service.Campos.AgregaCampo("Cav_Dto1", ListaCampos::Doble, 2.5, 2);
  service.Tabla = "Cav";
  service.Condicion = " WHERE Cav_IdLca = 12";
  EXPECT_TRUE(service.ActualizaFilas(error));

  service.Tabla = "Lca";
  service.LimpiaSentencia();
  service.Condicion = "where Lca_Id=12";
  EXPECT_TRUE(service.BorraFilas(error));

  EXPECT_THAT(connection->calls,
              ElementsAre("INSERT INTO Lcd (Lcd_IdLca, Lcd_Obs) VALUES (12, 'd''Or')",
                          "UPDATE Cav SET Cav_IdLca = Null, Cav_Dto1 = 2.50 WHERE Cav_IdLca = 12",
                          "DELETE FROM Lca where Lca_Id=12"));
}

TEST_F(BaseDatosTest, NeverTouchesAWholeTableWithoutACondition) {
  service.Tabla = "Cav";
  service.Campos.AgregaCampo("Cav_IdLca", ListaCampos::Literal, "Null", 2);
  for (const char* condition :
       {"", "  ", " WHERE", " WHERE  ", ", Cav_Dto1 = 0", " WHEREVER = 1"}) {
    service.Condicion = condition;
    EXPECT_FALSE(service.ActualizaFilas(error)) << condition;
    EXPECT_THAT(error, HasSubstr("Cav")) << condition;
    EXPECT_FALSE(service.BorraFilas(error)) << condition;
  }
  EXPECT_THAT(connection->calls, IsEmpty());
}

TEST_F(BaseDatosTest, RefusesAStatementThatCannotBeBuilt) {
  const auto refused = [&](const char* words) {
    EXPECT_FALSE(service.InsertaFila(error)) << service.Tabla;
    EXPECT_THAT(error, HasSubstr(words));
  };
  refused("tabla");
  service.Tabla = "Lca";
  refused("columna");
  service.Campos.AgregaCampo("Lca_Obs", ListaCampos::Texto, "", 2);
  service.Condicion = " WHERE Lca_Id = 1";
  refused("");
  service.Condicion = "";
  for (const char* table : {"Lca; DROP TABLE Lca", "Lca Lcd", "Lca.", ".Lca", "'Lca'"}) {
    service.Tabla = table;
    refused("");
  }
  EXPECT_THAT(connection->calls, IsEmpty());
  service.Tabla = "Vespara.dbo.Tivas";
  EXPECT_TRUE(service.InsertaFila(error)) << error;
}

TEST_F(BaseDatosTest, GivesTheEnginesMessageWhenAStatementFails) {
  connection->answer(ado::Error(2601, "Clave duplicada"));
  service.Tabla = "Lcd";
  service.Campos.AgregaCampo("Lcd_IdCav", ListaCampos::Entero, 1, 2);
  EXPECT_FALSE(service.InsertaFila(error));
  EXPECT_EQ(error, "Clave duplicada");
  EXPECT_TRUE(service.InsertaFila(error));
  EXPECT_EQ(error, "");
}

}  // namespace
}  // namespace korvantes::plindor
