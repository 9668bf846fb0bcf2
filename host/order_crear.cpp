#include <ostream>

#include "host/database.h"
#include "host/orders.h"
#include "sample/data.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

constexpr const char* kTablesExist = "la base ya tiene tablas; no se ha cambiado nada";

void requireNoArguments(const CommandLine& line) {
  if (!line.arguments.empty())
    throw Failure(line.order + ": sobra " + inQuotes(line.arguments.front()));
}

}  // namespace

void orderCreate(const CommandLine& line, Streams streams) {
  requireNoArguments(line);
  if (!createTables(openDatabase(line.base, OpenMode::Create))) throw Failure(kTablesExist);
  streams.out << "Tablas creadas.\n";
}

void orderDemo(const CommandLine& line, Streams streams) {
  requireNoArguments(line);
  if (!createTables(openDatabase(line.base, OpenMode::Create), sample::loadSampleData))
    throw Failure(kTablesExist);
  streams.out << "Tablas creadas, con datos de muestra.\n";
}

}  // namespace korvantes::host
