#include "data/settlement_checks.h"

#include "data/stored_settlement.h"
#include "runtime/screen/conversions.h"

namespace korvantes::data {

namespace {

constexpr const char* kLineBreak = "\r\n";
constexpr const char* kLostInvoice =
    ", porque ya no existen o han perdido su factura o su cliente: ";

std::string removalWords(std::int32_t settlement, std::size_t notes, std::size_t listed) {
  const std::string number = std::to_string(settlement);
  std::string why = "no hay ningún albarán marcado";
  if (notes == 0)
    why = "no tiene ningún albarán";
  else if (listed == 0)
    why = "sus albaranes no aparecen en la lista" + (kLostInvoice + std::to_string(notes));
  else if (notes > listed)
    why +=
        ", y los demás no aparecen en la lista" + (kLostInvoice + std::to_string(notes - listed));
  return "La liquidación " + number + " se va a eliminar: " + why + ". ¿Desea eliminarla?";
}

}  // namespace

std::optional<Refusal> refusalOf(const SettlementToCheck& settlement) {
  if (!settlement.stored && !settlement.anyMarked) return Refusal::NothingMarked;
  if (settlement.date.empty()) return Refusal::DateMissing;
  const std::optional<ado::Date> day = screen::toDate(settlement.date);
  if (!day) return Refusal::DateInvalid;
  if (ado::Moment{*day, 0} > settlement.now) return Refusal::DateAhead;
  // Removing a settlement stores no amounts.
  if (!settlement.anyMarked) return {};
  if (!settlement.ratesFailure.empty()) return Refusal::RatesUnknown;
  if (!settlement.sumFailure.empty()) return Refusal::SumUnknown;
  return {};
}

std::string wordsOf(Refusal refusal, const SettlementToCheck& settlement) {
  switch (refusal) {
    case Refusal::NothingMarked:
      return "No ha marcado facturas para liquidar";
    case Refusal::DateMissing:
      return "Es necesario introducir una fecha para la liquidacion";
    case Refusal::DateInvalid:
      return "Es necesario introducir una fecha valida para la liquidacion";
    case Refusal::DateAhead:
      return "La fecha de la liquidacion no puede ser superior a la actual";
    case Refusal::RatesUnknown:
      return "No se puede guardar la liquidación: no se han podido consultar los porcentajes de "
             "IVA "
             "y de retención." +
             (kLineBreak + settlement.ratesFailure) + kLineBreak +
             "Al salir otra vez de la fecha de la liquidación se repite la consulta.";
    case Refusal::SumUnknown:
      return "No se puede guardar la liquidación: no se han podido calcular los importes." +
             (kLineBreak + settlement.sumFailure);
  }
  return {};
}

bool concernsDate(Refusal refusal) {
  return refusal != Refusal::NothingMarked && refusal != Refusal::SumUnknown;
}

std::optional<Question> questionAboutAgent(std::int32_t listed, std::int32_t agent,
                                           const std::string& name) {
  if (agent == listed) return {};
  return Question{false, "Las facturas de la lista son del agente " + std::to_string(listed) +
                             " y la liquidación va a ser del agente " + std::to_string(agent) +
                             " (" + name + "). ¿Desea guardarla así?"};
}

std::optional<Question> questionAboutHiddenNotes(ado::Connection& connection,
                                                 std::int32_t settlement, std::size_t listed,
                                                 bool anyMarked) {
  const std::size_t notes = notesOf(connection, settlement);
  const bool hidden = notes > listed;
  if (!anyMarked && (hidden || listed == 0))
    return Question{true, removalWords(settlement, notes, listed)};
  if (!hidden) return {};
  return Question{false,
                  "Albaranes de la liquidación que no aparecen en la lista" +
                      (kLostInvoice + std::to_string(notes - listed)) +
                      ". Al guardarla dejarán de estar en ella, y los importes quedarán como se "
                      "ven. ¿Desea guardarla así?"};
}

}  // namespace korvantes::data
