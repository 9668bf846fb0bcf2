#include <ostream>
#include <string>

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

/// What was done: only one of the two files may have lacked anything.
std::string wordsOf(CreatedBase created, const std::string& tables) {
  if (!created.company)
    return "Completada la base de datos compartida; la de la empresa no se ha cambiado.";
  if (created.shared) return tables;
  return tables + " La base de datos compartida ya existía y no se ha cambiado.";
}

}  // namespace

void orderCreate(const CommandLine& line, Streams streams) {
  streams.out << wordsOf(create(line, BaseContents::EmptyTables), "Tablas creadas.") << '\n';
}

void orderDemo(const CommandLine& line, Streams streams) {
  streams.out << wordsOf(create(line, BaseContents::SampleData),
                         "Tablas creadas, con datos de muestra.")
              << '\n';
}

}  // namespace korvantes::host
