#include "engines/tsql/compiler.h"
#include "host/database.h"
#include "host/input_text.h"
#include "host/orders.h"
#include "scripts/failure.h"
#include "scripts/printed_values.h"

namespace korvantes::host {

void orderSql(const CommandLine& line, Streams streams) {
  if (line.arguments.size() > 1) throw Failure("sql: sobra " + inQuotes(line.arguments[1]));
  const std::string source = line.arguments.empty() ? "-" : line.arguments.front();
  const Database database = openDatabase(line.base);
  const std::string text = readInput(source, streams.in);
  int place = 0;
  for (const std::string& statement : tsql::splitStatements(text)) {
    ++place;
    try {
      scripts::printStatement(*database.connection, statement, streams.out);
    } catch (const ado::Error& error) {
      throw Failure("sentencia " + std::to_string(place) + ": " + error.what());
    }
  }
}

}  // namespace korvantes::host
