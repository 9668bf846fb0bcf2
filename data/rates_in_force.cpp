#include "data/rates_in_force.h"

#include "data/statement_values.h"

namespace korvantes::data {

namespace {

constexpr const char* kSelectRates = "Select Top 1 * from Vespara.dbo.Tivas WHERE Tiva_reg = ";
constexpr const char* kOfArticle = " AND Tiva_Art = 1 ";
constexpr const char* kUntil = " AND Tiva_Fecha <= '";
constexpr const char* kEndOfDate = "'";
constexpr const char* kNewestFirst = " ORDER BY Tiva_Fecha Desc";

constexpr const char* kSelectRegime = "SELECT Age_Reg FROM Age WHERE Age_id = ";

constexpr std::int32_t kDefaultRegime = 1;

OptionalDecimal percentFrom(const ado::Variant& stored) {
  if (stored.isNull()) return {};
  return stored.asDecimal();
}

}  // namespace

std::string ratesStatement(std::int32_t regime, std::string_view date) {
  std::string statement = kSelectRates + std::to_string(regime) + kOfArticle;
  if (!date.empty()) statement += kUntil + dateOf(date) + kEndOfDate;
  return statement + kNewestFirst;
}

std::optional<Rates> ratesInForce(ado::Connection& connection, std::int32_t regime,
                                  std::string_view date) {
  const ado::Recordset found = connection.Execute(ratesStatement(regime, date));
  if (found.RecordCount() < 1) return {};
  return Rates{found.Collect("Tiva_Id").asLong(), percentFrom(found.Collect("Tiva_Iva")),
               percentFrom(found.Collect("Tiva_Ret"))};
}

std::int32_t regimeOf(ado::Connection& connection, std::int32_t agent) {
  const std::string statement = kSelectRegime + std::to_string(agent);
  const ado::Recordset found = connection.Execute(statement);
  if (found.isEOF())
    throw ado::Error(ado::ErrorKind::Gone, 0,
                     "El agente " + std::to_string(agent) +
                         " ya no existe, y no se sabe qué régimen fiscal tenía.",
                     statement);
  return regimeFrom(found.Collect("Age_Reg"));
}

std::int32_t regimeFrom(const ado::Variant& stored) {
  return stored.isNull() ? kDefaultRegime : stored.asLong();
}

}  // namespace korvantes::data
