#include "data/stored_settlement.h"

namespace korvantes::data {

namespace {

constexpr const char* kSelectHeader =
    "SELECT lca.*,Age_Nom FROM Lca INNER JOIN Age ON Age_Id = Lca_Idag WHERE Lca_ID = ";
constexpr const char* kSelectAgent = "Select Lca_IdAg from Lca where Lca_Id = ";
constexpr const char* kSelectNotes = "Select Lcd_IdCav from Lcd where Lcd_IdLca = ";

}  // namespace

ado::Recordset storedSettlement(ado::Connection& connection, std::int32_t settlement) {
  return connection.Execute(kSelectHeader + std::to_string(settlement));
}

std::string whyNotFound(ado::Connection& connection, std::int32_t settlement) {
  const std::string number = std::to_string(settlement);
  const ado::Recordset header = connection.Execute(kSelectAgent + number);
  if (header.isEOF()) return goneWords(settlement);
  return "El agente " + std::to_string(header.Collect("Lca_IdAg").asLong()) +
         " de la liquidación " + number + " ya no existe; no se puede mostrar ni cambiar.";
}

std::size_t notesOf(ado::Connection& connection, std::int32_t settlement) {
  return connection.Execute(kSelectNotes + std::to_string(settlement)).RecordCount();
}

std::string goneWords(std::int32_t settlement) {
  return "La liquidación " + std::to_string(settlement) +
         " ya no existe: otro usuario la ha cambiado o eliminado.";
}

}  // namespace korvantes::data
