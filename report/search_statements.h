// The texts of the statements that search settlements.
#pragma once

#include <cstdint>
#include <string>

namespace korvantes::report {

/// What a row of the result represents.
enum class Forma {
  Resumen,  ///< a settlement
  Factura,  ///< an invoice of a settlement
  Albaran,  ///< a line of a delivery note of a settlement
};

/// The filters as the screen's fields hold them; an empty text is no filter.
struct Filtros {
  std::int32_t nIdAgente = 0;  ///< 0 for every agent
  std::string sDesdeFecha, sHastaFecha;
  std::string sSerie, sDesdeNumero, sHastaNumero;
};

/// The filter text: empty, or starting with "WHERE ". Dates are inserted unchanged, for the server
/// to read.
std::string filtroDe(const Filtros& filtros);

/// The sum of the bases, as SumaLiquidacion; Null without settlements.
std::string sentenciaTotal(const std::string& sFiltro);
std::string sentenciaResumen(const std::string& sFiltro, const std::string& sOrdenacion);
/// Rows of the shape by delivery note, and of the shape by invoice before its notes are merged.
/// @param forma Factura or Albaran
/// @param bPorFecha order by agent and date, with the invoice before the customer; else by
///   agent, date and customer, with the customer first
std::string sentenciaDetalle(Forma forma, bool bPorFecha, const std::string& sFiltro);

/// Returns no rows, for an empty result.
inline constexpr const char* kSentenciaVacia = "SELECT * FROM Lca WHERE Lca_Id=-1";
/// Order of the summary.
inline constexpr const char* kOrdenResumen = "Lca_IdAg,Lca_Fecha";

}  // namespace korvantes::report
