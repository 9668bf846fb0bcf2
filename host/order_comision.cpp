#include <limits>
#include <ostream>

#include "data/commission_rule.h"
#include "host/component_session.h"
#include "host/database.h"
#include "host/orders.h"
#include "runtime/screen/conversions.h"
#include "scripts/failure.h"
#include "scripts/whole_number.h"

namespace korvantes::host {
namespace {

template <class Number>
Number wholeArgument(std::string_view name, const std::string& text) {
  return static_cast<Number>(scripts::readWholeNumber(
      name, text, std::numeric_limits<Number>::min(), std::numeric_limits<Number>::max()));
}

}  // namespace

void orderCommission(const CommandLine& line, Streams streams) {
  if (line.arguments.size() != 3)
    throw Failure("comision: se esperan tres números, ORIGEN ID IDLI");
  const auto origin = wholeArgument<std::int16_t>("ORIGEN", line.arguments[0]);
  const auto header = wholeArgument<std::int32_t>("ID", line.arguments[1]);
  const auto documentLine = wholeArgument<std::int32_t>("IDLI", line.arguments[2]);
  if (origin != data::kPedido && origin != data::kAlbaran)
    throw Failure("ORIGEN: " + inQuotes(line.arguments[0]) + " no es 2 (pedido) ni 3 (albarán)");

  const Database database = openDatabase(line.base);
  const ComponentSession session(database);
  const double commission = session.component().msComisionAgente(origin, header, documentLine);
  const screen::Regional regional = line.regional.value_or(screen::Regional::ofMachine());
  streams.out << screen::CStr(commission, regional) << '\n';
}

}  // namespace korvantes::host
