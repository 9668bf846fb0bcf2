#include <ostream>

#include "host/create_base.h"
#include "host/orders.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

CreatedBase create(const CommandLine& line, BaseContents contents) {
  if (!line.arguments.empty())
    throw Failure(line.order + ": sobra " + inQuotes(line.arguments.front()));
  const CreatedBase created = createBase(filePathOf(line.base), contents);
  if (!created) throw Failure("la base ya tiene tablas; no se ha cambiado nada");
  return created;
}

/// What to add where one of the two files was there before.
const char* keptPart(CreatedBase created) {
  if (!created.shared) return " La base de datos compartida ya existía y no se ha cambiado.";
  if (!created.company) return " Solo faltaba la base de datos compartida.";
  return "";
}

}  // namespace

void orderCreate(const CommandLine& line, Streams streams) {
  const CreatedBase created = create(line, BaseContents::EmptyTables);
  streams.out << "Tablas creadas." << keptPart(created) << '\n';
}

void orderDemo(const CommandLine& line, Streams streams) {
  const CreatedBase created = create(line, BaseContents::SampleData);
  streams.out << "Tablas creadas, con datos de muestra." << keptPart(created) << '\n';
}

}  // namespace korvantes::host
