#include "data/settlement_writing.h"
#include "data/stored_settlement.h"
#include "runtime/ado/error.h"

namespace korvantes::data {

namespace {

constexpr const char* kOfNotes = " WHERE Cav_IdLca = ";
constexpr const char* kOfDetails = " WHERE Lcd_IdLca=";
constexpr const char* kOfHeader = " WHERE Lca_Id=";

constexpr int kDecimals = 2;

/// Thrown when the database service returns False; its message is not shown.
constexpr long kOwnError = 999;
constexpr const char* kOwnErrorWords = "Error definido por la aplicación o el objeto";

void require(bool done) {
  if (!done) throw ado::Error(kOwnError, kOwnErrorWords);
}

}  // namespace

void deleteSettlement(plindor::BaseDatos& service, std::int32_t settlement) {
  const std::string number = std::to_string(settlement);
  long long rows = 0;
  std::string error;

  service.Tabla = "Cav";
  service.LimpiaSentencia(0);
  service.Campos.AgregaCampo("Cav_IdLca", plindor::ListaCampos::Literal, "Null", kDecimals);
  service.Condicion = kOfNotes + number;
  require(service.ActualizaFilas(error));
  rows += service.FilasAfectadas();

  service.Tabla = "Lcd";
  service.LimpiaSentencia(0);
  service.Condicion = kOfDetails + number;
  require(service.BorraFilas(error));
  rows += service.FilasAfectadas();

  service.Tabla = "Lca";
  service.LimpiaSentencia(0);
  service.Condicion = kOfHeader + number;
  require(service.BorraFilas(error));
  rows += service.FilasAfectadas();

  // If another user has replaced it, its delivery notes are still settled, under another number.
  if (rows == 0) throw ado::Error(ado::ErrorKind::Gone, 0, goneWords(settlement));
}

}  // namespace korvantes::data
