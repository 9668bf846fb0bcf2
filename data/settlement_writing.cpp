#include "data/settlement_writing.h"

#include "data/stored_settlement.h"
#include "runtime/screen/conversions.h"

namespace korvantes::data {

namespace {

using plindor::ListaCampos;
using Step = SaveFailure::Step;

constexpr const char* kFreeNotes = "Update Cav set Cav_IdLca = Null ";
constexpr const char* kWhereSettled = "where Cav_IdLca = ";
constexpr const char* kDeleteDetails = "delete from Lcd where Lcd_IdLca=";
constexpr const char* kDeleteHeader = "delete from Lca where Lca_Id=";
constexpr const char* kNewest = "Select max(Lca_id) from Lca";
constexpr const char* kMarkNote = "Update Cav set Cav_IdLca = ";
/// Follows the number without a blank; the server still reads two words.
constexpr const char* kWhereNote = "where cav_id = ";
constexpr const char* kSettlementOf = "Select Lcd_IdLca from Lcd where Lcd_IdCav = ";

constexpr const char* kLineBreak = "\r\n";

constexpr int kDecimals = 2;

std::string beginningOf(Step step) {
  switch (step) {
    case Step::Header:
      return "Error registrando liquidacion:";
    case Step::Detail:
      return "Error registrando relacion liquidacion/factura:";
    case Step::Mark:
      return "Error actualizando facturas liquidadas:";
    case Step::Replaced:
      break;
  }
  return {};
}

/// Names the settlement that already has the note; empty if there is none.
std::string alreadySettled(ado::Connection& connection, const NoteToSettle& note) {
  try {
    const ado::Recordset found = connection.Execute(kSettlementOf + std::to_string(note.id));
    if (found.isEOF()) return "";
    return std::string(kLineBreak) + "El albarán " + note.name + " ya está en la liquidación " +
           screen::CStr(found.Collect("Lcd_IdLca")) + ".";
  } catch (const std::exception&) {
    return "";
  }
}

void insertHeader(plindor::BaseDatos& service, const SettlementDraft& draft) {
  service.LimpiaSentencia(0);
  service.Tabla = "Lca";
  ListaCampos& columns = service.Campos;
  // The type takes a Double.
  const auto addNumber = [&](const char* column, const ado::Decimal& value) {
    columns.AgregaCampo(column, ListaCampos::Doble, value.toDouble(), kDecimals);
  };
  columns.AgregaCampo("Lca_IdAg", ListaCampos::Entero, draft.agent, kDecimals);
  if (draft.until.empty())
    columns.AgregaCampo("Lca_HFecha", ListaCampos::Literal, "Null", kDecimals);
  else
    columns.AgregaCampo("Lca_HFecha", ListaCampos::Fecha, draft.until, kDecimals);
  columns.AgregaCampo("Lca_Cob", ListaCampos::Entero, draft.collected ? 1 : 0, kDecimals);
  columns.AgregaCampo("Lca_NCob", ListaCampos::Entero, draft.uncollected ? 1 : 0, kDecimals);
  columns.AgregaCampo("Lca_Fecha", ListaCampos::Fecha, draft.date, kDecimals);
  columns.AgregaCampo("Lca_IdTiva", ListaCampos::Entero, draft.rateRow, kDecimals);
  columns.AgregaCampo("Lca_Obs", ListaCampos::Texto, draft.remarks, kDecimals);
  addNumber("Lca_Base", draft.amounts.base);
  addNumber("Lca_PorIva", draft.vatPercent);
  addNumber("Lca_Iva", draft.amounts.vat);
  addNumber("Lca_PorRetencion", draft.withholdingPercent);
  addNumber("Lca_Retencion", draft.amounts.withholding);
  addNumber("Lca_Total", draft.amounts.total);
  service.Condicion = "";
  std::string error;
  if (!service.InsertaFila(error)) throw SaveFailure(Step::Header, error);
}

void insertDetail(plindor::BaseDatos& service, std::int32_t settlement, const NoteToSettle& note) {
  service.LimpiaSentencia(0);
  service.Tabla = "Lcd";
  service.Campos.AgregaCampo("Lcd_IdLca", ListaCampos::Entero, settlement, kDecimals);
  service.Campos.AgregaCampo("Lcd_IdCav", ListaCampos::Entero, note.id, kDecimals);
  service.Condicion = " ";
  std::string error;
  if (!service.InsertaFila(error))
    throw SaveFailure(Step::Detail, error + alreadySettled(service.Conexion(), note));
}

void markNote(ado::Connection& connection, std::int32_t settlement, const NoteToSettle& note) {
  try {
    long long marked = 0;
    connection.Execute(
        kMarkNote + std::to_string(settlement) + kWhereNote + std::to_string(note.id), &marked);
    if (marked != 1) throw std::runtime_error("El albarán " + note.name + " ya no existe.");
  } catch (const std::exception& failure) {
    throw SaveFailure(Step::Mark, failure.what());
  }
}

}  // namespace

SaveFailure::SaveFailure(Step step, const std::string& why)
    : std::runtime_error(step == Step::Replaced ? why : beginningOf(step) + kLineBreak + why),
      step_(step) {}

std::string saveFailureWords(const std::exception& failure) {
  if (dynamic_cast<const SaveFailure*>(&failure) != nullptr) return failure.what();
  return std::string("Error grabando la liquidacion:") + kLineBreak + failure.what();
}

void removeReplaced(ado::Connection& connection, std::int32_t settlement) {
  const std::string number = std::to_string(settlement);
  connection.Execute(std::string(kFreeNotes) + kWhereSettled + number);
  connection.Execute(kDeleteDetails + number);
  long long removed = 0;
  connection.Execute(kDeleteHeader + number, &removed);
  if (removed == 0)
    throw SaveFailure(Step::Replaced, "La liquidación " + number + " ya no existe:" + kLineBreak +
                                          "otro usuario la ha cambiado o eliminado. Cierre y "
                                          "vuelva a buscarla.");
}

std::int32_t writeSettlement(plindor::BaseDatos& service, const SettlementDraft& draft) {
  insertHeader(service, draft);
  const std::int32_t number =
      service.Conexion().Execute(kNewest).Fields(std::size_t{0}).Value().asLong();
  for (const NoteToSettle& note : draft.notes) {
    insertDetail(service, number, note);
    markNote(service.Conexion(), number, note);
  }
  return number;
}

}  // namespace korvantes::data
