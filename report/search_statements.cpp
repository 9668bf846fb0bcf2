#include "report/search_statements.h"

#include "data/money_rule_sql.h"
#include "runtime/screen/conversions.h"

namespace korvantes::report {

namespace {

// The filters. The blanks of a fragment are part of it.
constexpr const char* kDonde = "WHERE ";
constexpr const char* kY = " AND ";
constexpr const char* kAgente = "Lca_IdAg = ";
constexpr const char* kFechaEntre = "Lca_Fecha BETWEEN '";
constexpr const char* kYFecha = " ' AND '";
constexpr const char* kFechaDesde = "Lca_Fecha >= '";
constexpr const char* kFechaHasta = "Lca_Fecha <= '";
constexpr const char* kSerie = " AND Rec_Serie ='";
constexpr const char* kCierra = "' ";
constexpr const char* kNumeroEntre = "Rec_Numero BETWEEN ";
constexpr const char* kNumeroDesde = "Rec_Numero >= ";
constexpr const char* kNumeroHasta = "Rec_Numero <= ";

constexpr const char* kTotal = "SELECT SUM(Lca_Base) as SumaLiquidacion FROM Lca ";

constexpr const char* kResumen =
    "SELECT Lca_Id,Age_Nom,Lca_Fecha,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total "
    "FROM Lca "
    "INNER JOIN Age ON Lca_IdAg = Age_Id ";
/// No leading blank: after an agent's number the server still reads two words.
constexpr const char* kOrdenaResumen = "ORDER BY ";

// Both detail shapes.
constexpr const char* kDetalle = "SELECT Fav_Id,Lca_Id,Age_Nom,Lca_Fecha, ";
constexpr const char* kFacturaCliente =
    "(Fav_Serie + '/' + CAST(Fav_Numero AS char(5))) AS Factura,Fav_fecha,Fav_CliNom, ";
constexpr const char* kClienteFactura =
    "Fav_CliNom,(Fav_Serie + '/' + CAST(Fav_Numero AS char(5))) AS Factura,Fav_fecha, ";
constexpr const char* kComunes =
    "Fav_Serie,Fav_Numero, Fav_CliCod,Fav_CliNom,"
    "Age_Id,Age_Nif,Lca_Base,Lca_Iva,Lca_Retencion,Lca_Total, "
    "(Fav_BIva1+Fav_Biva2+Fav_Biva3) AS Fav_Bruto ";
constexpr const char* kTablas =
    "FROM Lca "
    "INNER JOIN Age ON Lca_IdAg = Age_Id "
    "INNER JOIN Lcd ON Lca_Id = Lcd_IdLca "
    "INNER JOIN Cav ON Lcd_IdCav = Cav_Id "
    "INNER JOIN Fav ON Fav_Id = Cav_IdFactura "
    "INNER JOIN Cli ON Cli_Id = Fav_IdCli ";
constexpr const char* kOrdena = " ORDER BY ";
constexpr const char* kOrdenFecha = "Age_Nom,Lca_Fecha,Fav_Fecha,Fav_Serie,Fav_Numero";
constexpr const char* kOrdenCliente = "Age_Nom,Lca_Fecha,Fav_CliNom,Fav_Fecha,Fav_Serie,Fav_Numero";

// By invoice: the commission of the note.
constexpr const char* kAbreSuma =
    ", (SELECT "
    "SUM(";
constexpr const char* kCierraSuma =
    ") "
    "FROM Lav INNER JOIN Cav ON Cav_Id = Lav_IdCav WHERE Cav_Id = Lcd_IdCav) AS Comision, "
    "Age_Id,Fav_CliCod,Lca_Base,Age_Nif,Lca_Iva,Lca_Retencion,Lca_Total ";

// By delivery note: the line, its net amount and its commission.
constexpr const char* kAbreLinea =
    ",(Cav_Serie + '/' + CAST(Cav_Numero AS char(5))) AS Albaran, Lav_Des, "
    "ISNULL(";
constexpr const char* kTrasBase =
    ",0) AS Base , "
    "Lav_Comi AS Porcentaje, ";
constexpr const char* kTrasComision = " AS Comision ";
constexpr const char* kConLineas = "INNER JOIN Lav ON Lav_IdCav = Cav_Id ";

std::string filtroFecha(const std::string& sConector, const std::string& sDesde,
                        const std::string& sHasta) {
  if (!sDesde.empty() && !sHasta.empty())
    return sConector + kFechaEntre + sDesde + kYFecha + sHasta + kCierra;
  if (!sDesde.empty()) return sConector + kFechaDesde + sDesde + kCierra;
  if (!sHasta.empty()) return sConector + kFechaHasta + sHasta + kCierra;
  return {};
}

std::string filtroNumero(const std::string& sConector, const std::string& sDesde,
                         const std::string& sHasta) {
  const bool bDesde = screen::Val(sDesde) > 0;
  const bool bHasta = screen::Val(sHasta) > 0;
  if (bDesde && bHasta) return sConector + kNumeroEntre + sDesde + kY + sHasta;
  if (bDesde) return sConector + kNumeroDesde + sDesde;
  if (bHasta) return sConector + kNumeroHasta + sHasta;
  return {};
}

}  // namespace

std::string filtroDe(const Filtros& filtros) {
  std::string sConector = kDonde;

  std::string sFiltroAgente;
  if (filtros.nIdAgente != 0) {
    sFiltroAgente = sConector + kAgente + std::to_string(filtros.nIdAgente);
    sConector = kY;
  }

  const std::string sFiltroFecha = filtroFecha(sConector, filtros.sDesdeFecha, filtros.sHastaFecha);
  if (!sFiltroFecha.empty()) sConector = kY;

  std::string sFiltroSerie;
  if (!filtros.sSerie.empty()) {
    sFiltroSerie = kSerie + filtros.sSerie + kCierra;
    sConector = kY;
  }

  const std::string sFiltroNumero =
      filtroNumero(sConector, filtros.sDesdeNumero, filtros.sHastaNumero);

  return sFiltroAgente + sFiltroFecha + sFiltroSerie + sFiltroNumero;
}

std::string sentenciaTotal(const std::string& sFiltro) {
  return kTotal + sFiltro;
}

std::string sentenciaResumen(const std::string& sFiltro, const std::string& sOrdenacion) {
  return kResumen + sFiltro + kOrdenaResumen + sOrdenacion;
}

std::string sentenciaDetalle(Forma forma, bool bPorFecha, const std::string& sFiltro) {
  std::string sSql = kDetalle;
  sSql += bPorFecha ? kFacturaCliente : kClienteFactura;
  sSql += kComunes;
  if (forma == Forma::Factura) {
    sSql += kAbreSuma + data::sql::noteLineCommission() + kCierraSuma + kTablas;
  } else {
    sSql += kAbreLinea + data::sql::noteLineNet() + kTrasBase + data::sql::noteLineCommission() +
            kTrasComision + kTablas + kConLineas;
  }
  return sSql + sFiltro + kOrdena + (bPorFecha ? kOrdenFecha : kOrdenCliente);
}

}  // namespace korvantes::report
