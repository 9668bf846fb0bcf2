#include "host/host.h"

#include <exception>
#include <new>
#include <ostream>
#include <string_view>

#include "host/command_line.h"
#include "host/orders.h"
#include "host/windows.h"
#include "library/factory.h"
#include "scripts/failure.h"

namespace korvantes::host {
namespace {

constexpr std::string_view kProgram = "korvantes-host";

struct NamedOrder {
  std::string_view name;
  void (*run)(const CommandLine& line, Streams streams);
};

constexpr NamedOrder kOrders[] = {
    {"crear", orderCreate},        {"demo", orderDemo},    {"sql", orderSql},
    {"comision", orderCommission}, {"guion", orderScript},
};

void runWithoutOrder(const CommandLine& line, Streams streams) {
  if (line.desktop || (hasWindows() && displayAvailable())) {
    runDesktop(line);
    return;
  }
  if (line.base)
    throw Failure("sin pantalla hace falta una orden para trabajar con --base; véase --ayuda");
  playSampleSettlement(line, streams);
}

void run(const CommandLine& line, Streams streams) {
  if (line.help) {
    streams.out << kHelp;
    return;
  }
  if (line.version) {
    streams.out << kProgram << ' ' << korvantes_version() << '\n';
    return;
  }
  if (line.order.empty()) {
    if (!line.arguments.empty()) throw Failure("la orden está vacía; véase --ayuda");
    runWithoutOrder(line, streams);
    return;
  }
  for (const NamedOrder& order : kOrders)
    if (order.name == line.order) {
      order.run(line, streams);
      return;
    }
  throw Failure("no se conoce la orden " + inQuotes(line.order) + "; véase --ayuda");
}

int fail(Streams streams, std::string_view words) {
  streams.out.flush();
  streams.err << kProgram << ": " << onOneLine(words) << '\n';
  return 1;
}

}  // namespace

int runHost(const std::vector<std::string>& arguments, Streams streams) {
  try {
    run(readCommandLine(arguments), streams);
  } catch (const std::bad_alloc&) {
    return fail(streams, "no hay memoria suficiente");
  } catch (const std::exception& failure) {
    return fail(streams, failure.what());
  }
  if (!streams.out.flush()) return fail(streams, "no se ha podido escribir la salida");
  return 0;
}

}  // namespace korvantes::host
