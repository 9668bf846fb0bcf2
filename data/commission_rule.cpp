#include "data/commission_rule.h"

#include <string_view>

#include "data/money_rule_sql.h"

namespace korvantes::data {

namespace {

/// The runtime's number for a value that does not fit.
constexpr long kOverflow = 6;

constexpr std::string_view kSelecciona = "SELECT ";
constexpr std::string_view kComoComision = " AS Comision ";

/// The parts that differ between the document families.
struct Familia {
  std::string_view menosDescuento1;
  std::string_view menosDescuento2;
  std::string_view porComision;
  std::string_view tablas;
  std::string_view filtroLinea;
  std::string_view filtroDocumento;
};

Familia familiaDe(std::int16_t nOrigen) {
  if (nOrigen == kAlbaran)
    return {sql::kNoteLineLessDiscount1, sql::kNoteLineLessDiscount2,
            sql::kTimesNoteCommission,   "FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav ",
            " WHERE Lav_Id = ",          "WHERE Cav_id = "};
  return {sql::kOrderLineLessDiscount1, sql::kOrderLineLessDiscount2,
          sql::kTimesOrderCommission,   "FROM PedLi INNER JOIN PedCa ON PedCa_Id = PedLi_IdPedca ",
          " WHERE LiPed_Id = ",         "WHERE PedCa_id = "};
}

}  // namespace

std::string sentenciaComision(std::int16_t nOrigen, std::int32_t nId, std::int32_t nIdLi) {
  if (nOrigen != kPedido && nOrigen != kAlbaran) return {};
  const Familia familia = familiaDe(nOrigen);

  std::string sentencia;
  sentencia.reserve(512);
  for (const std::string_view fragmento :
       {kSelecciona, sql::kOpenCommission, familia.menosDescuento1, familia.menosDescuento2,
        familia.porComision, sql::kCloseCommission, kComoComision, familia.tablas,
        nIdLi != 0 ? familia.filtroLinea : familia.filtroDocumento}) {
    sentencia += fragmento;
  }
  sentencia += std::to_string(nIdLi != 0 ? nIdLi : nId);
  return sentencia;
}

ado::Decimal comisionExacta(ado::Connection& conexion, std::int16_t nOrigen, std::int32_t nId,
                            std::int32_t nIdLi) {
  const std::string sentencia = sentenciaComision(nOrigen, nId, nIdLi);
  ado::Recordset filas = conexion.Execute(sentencia);
  ado::Decimal suma = ado::Decimal::money(0);
  try {
    for (; !filas.isEOF(); filas.MoveNext()) suma += filas.Fields(0).Value().asDecimal();
  } catch (const ado::ConversionError& error) {
    throw ado::Error(ado::ErrorKind::Overflow, kOverflow, error.what(), sentencia);
  }
  filas.Close();
  return suma;
}

double comisionAgente(ado::Connection& conexion, std::int16_t nOrigen, std::int32_t nId,
                      std::int32_t nIdLi) {
  return comisionExacta(conexion, nOrigen, nId, nIdLi).toDouble();
}

}  // namespace korvantes::data
