#include "data/commission_rule.h"

namespace korvantes::data {

namespace {

constexpr std::string_view kSelecciona = "SELECT ";
constexpr std::string_view kAbreComision = "ISNULL(ROUND(CAST( ";
constexpr std::string_view kCierraComision = "AS Money),2),0) AS Comision ";

/// What differs from one document family to the other. Net: the amount less discount 1, then less
/// discount 2 of that remainder; each is worked out by the server in cents.
struct Fragmentos {
  std::string_view trasDescuento1;
  std::string_view menosDescuento2;
  std::string_view porComision;
  std::string_view tablas;
  std::string_view filtroLinea;
  std::string_view filtroDocumento;
};

constexpr Fragmentos kDeAlbaran{
    "(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) as "
    "money),2)",
    "- ROUND(CAST(ROUND(CAST(Lav_Importe - ROUND(CAST((Lav_Importe * Cav_Dto1 / 100) AS Money),2) "
    "as money),2) * Cav_DTO2 /100 AS MONEY),2))",
    "/100 * Lav_Comi ",
    "FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav ",
    " WHERE Lav_Id = ",
    "WHERE Cav_id = "};

constexpr Fragmentos kDePedido{
    "(ROUND(CAST(PedLi_Importe - ROUND(CAST((PedLi_Importe * PedCa_Dto1 / 100) AS Money),2) as "
    "money),2)",
    "- ROUND(CAST(ROUND(CAST(PedLi_Importe - ROUND(CAST((PedLi_Importe * PedCa_Dto1 / 100) AS "
    "Money),2) as money),2) * PEDCA_DTO2 /100 AS MONEY),2))",
    "/100 * PedLi_Comi ",
    "FROM PedLi INNER JOIN PedCa ON PedCa_Id = PedLi_IdPedca ",
    " WHERE LiPed_Id = ",
    "WHERE PedCa_id = "};

}  // namespace

const std::string_view kNetoAlbaran =
    "(SELECT (round(cast((ROUND(cast(SUM(lav_Importe) as money),2)) - "
    " (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2)) - "
    " (round(cast (((((ROUND(cast(SUM(lav_Importe) as money),2)) - "
    " (ROUND(cast((SUM(lav_Importe) * Cav_Dto1 / 100)as money),2))) * Cav_Dto2 /100)) as "
    "money),2))as money),2)) ";

std::string sentenciaComision(std::int16_t nOrigen, std::int32_t nId, std::int32_t nIdLi) {
  if (nOrigen != kPedido && nOrigen != kAlbaran) return {};
  const Fragmentos& documento = nOrigen == kAlbaran ? kDeAlbaran : kDePedido;

  std::string sentencia;
  for (const std::string_view fragmento :
       {kSelecciona, kAbreComision, documento.trasDescuento1, documento.menosDescuento2,
        documento.porComision, kCierraComision, documento.tablas,
        nIdLi != 0 ? documento.filtroLinea : documento.filtroDocumento}) {
    sentencia += fragmento;
  }
  sentencia += std::to_string(nIdLi != 0 ? nIdLi : nId);
  return sentencia;
}

double comisionAgente(ado::Connection& conexion, std::int16_t nOrigen, std::int32_t nId,
                      std::int32_t nIdLi) {
  ado::Recordset filas = conexion.Execute(sentenciaComision(nOrigen, nId, nIdLi));
  double suma = 0.0;
  while (!filas.isEOF()) {
    suma += filas.Fields(0).Value().asDouble();
    filas.MoveNext();
  }
  filas.Close();
  return suma;
}

}  // namespace korvantes::data
