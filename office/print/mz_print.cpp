#include "office/print/mz_print.h"

#include <algorithm>
#include <stdexcept>

#include "office/print/settlement_list_report.h"
#include "office/print/settlement_notes.h"
#include "office/print/settlement_report.h"
#include "outside/plindor/base_datos.h"
#include "runtime/ado/text_order.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"

namespace korvantes::office {

namespace {

/// The runtime's numbers for a wrong argument, a wrong type, an object that was not given, a member
/// that does not exist, and a wrong number of arguments.
constexpr long kBadArgument = 5, kWrongType = 13, kNoObject = 91, kNoMember = 438,
               kArgumentCount = 450;

constexpr int kOneSettlement = 11, kSettlementList = 12;

/// Positions among the arguments of ShowReport.
constexpr std::size_t kNumber = 0, kStatement = 1, kFirstOmitted = 3, kRows = 7;
constexpr std::size_t kShortForm = 3, kLongForm = 8;

template <class Value>
const Value& argument(const Argument& given, const char* what) {
  if (const auto* value = std::get_if<Value>(&given)) return *value;
  throw ado::Error(kWrongType, std::string("Al informe le falta ") + what);
}

int reportNumber(const Argument& given) {
  try {
    return argument<ado::Variant>(given, "su número").asLong();
  } catch (const ado::ConversionError&) {
    throw ado::Error(kWrongType, "Al informe le falta su número");
  }
}

std::string statementText(const Argument& given) {
  const auto& text = argument<ado::Variant>(given, "su sentencia");
  return text.kind() == ado::VariantKind::Text ? text.text() : std::string();
}

bool isSelect(const std::string& statement) {
  const std::size_t start = statement.find_first_not_of(" \t\r\n");
  if (start == std::string::npos) return false;
  const std::size_t end = statement.find_first_of(" \t\r\n", start);
  return end != std::string::npos && ado::sameName(statement.substr(start, end - start), "select");
}

void requireLongForm(const std::vector<Argument>& arguments) {
  const auto first = arguments.begin() + kFirstOmitted;
  if (!std::all_of(first, arguments.begin() + kRows,
                   [](const Argument& each) { return std::holds_alternative<Omitted>(each); }))
    throw ado::Error(kBadArgument, "ShowReport no admite los argumentos 4 a 7");
}

}  // namespace

MZPrint::MZPrint(std::shared_ptr<ReportOutlet> outlet) : outlet_(std::move(outlet)) {
  if (!outlet_) throw std::logic_error("a report component without an outlet");
}

void MZPrint::set(std::string_view property, const Argument& value) {
  if (ado::sameName(property, "sAcotacion1")) {
    limits_ = screen::CStr(argument<ado::Variant>(value, "el texto de sus límites"));
  } else if (ado::sameName(property, "MyBd")) {
    database_ = argument<std::shared_ptr<plindor::BaseDatos>>(value, "la base de datos");
  } else {
    throw ado::Error(kNoMember, "El informe no tiene la propiedad «" + std::string(property) + "»");
  }
}

ado::Variant MZPrint::call(std::string_view method, const std::vector<Argument>& arguments) {
  if (!ado::sameName(method, "ShowReport"))
    throw ado::Error(kNoMember, "El informe no tiene el método «" + std::string(method) + "»");
  outlet_->deliver(gather(arguments));
  return {};
}

std::shared_ptr<const Report> MZPrint::gather(const std::vector<Argument>& arguments) const {
  if (arguments.size() != kShortForm && arguments.size() != kLongForm)
    throw ado::Error(kArgumentCount, "ShowReport espera 3 u 8 argumentos");
  const int number = reportNumber(arguments[kNumber]);
  if (number != kOneSettlement && number != kSettlementList)
    throw ado::Error(kBadArgument, "No existe el informe " + std::to_string(number));

  ado::Recordset rows;
  if (arguments.size() == kLongForm) {
    requireLongForm(arguments);
    // A second cursor, so that the caller's stays on its row.
    rows = argument<ado::Recordset>(arguments[kRows], "el conjunto de filas").Clone();
  } else {
    rows = query(statementText(arguments[kStatement]));
  }

  const screen::Desktop& desktop = screen::Desktop::current();
  const ReportTexts texts(desktop.regional());
  const ado::Date today = desktop.now().date;
  if (number == kSettlementList) {
    SettlementList list(rows);
    if (rows.RecordCount() > 0) list.readStored(query(list.storedStatement()));
    return std::make_shared<SettlementListReport>(std::move(list), limits_, texts, today);
  }

  if (rows.RecordCount() == 0)
    return std::make_shared<SettlementReport>(std::nullopt, ado::Recordset(), texts, today);
  if (rows.RecordCount() > 1)
    throw ado::Error(kBadArgument, "El informe 11 es de una sola liquidación, y los datos traen " +
                                       std::to_string(rows.RecordCount()));
  rows.MoveFirst();
  const Settlement settlement = readSettlement(rows);
  return std::make_shared<SettlementReport>(settlement, query(notesStatement(settlement.number)),
                                            texts, today);
}

ado::Recordset MZPrint::query(const std::string& statement) const {
  // A search by invoice leaves its filter text where a statement is expected.
  if (!isSelect(statement))
    throw ado::Error(kBadArgument,
                     "No se puede emitir el informe con las opciones marcadas ahora: vuelva a "
                     "buscar las liquidaciones y emítalo de nuevo.");
  if (!database_) throw ado::Error(kNoObject, "Al informe le falta la base de datos");
  return database_->Conexion().Execute(statement);
}

}  // namespace korvantes::office
