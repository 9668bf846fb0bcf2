#include "host/command_line.h"

#include <charconv>
#include <stdexcept>
#include <utility>

#include "scripts/failure.h"

namespace korvantes::host {

const std::string_view kHelp =
    R"(korvantes-host [--base URL] [--regional es-ES] [--hoy dd/mm/aaaa] [--salida CARPETA]
               [--escritorio] [orden …]

Órdenes:
  (sin orden)               abre el escritorio; sin pantalla, reproduce la liquidación de muestra
  crear                     crea las tablas vacías, o las que falten; se niega donde ya existen todas
  demo                      lo mismo, con datos de muestra
  sql [FICHERO|-]           ejecuta sentencias T-SQL, cada una acabada en ';' a final de línea o
                            separadas por líneas GO; los resultados salen separados por tabuladores
  comision ORIGEN ID IDLI   comisión de un pedido (origen 2) o de un albarán (origen 3); con IDLI
                            distinto de 0, la de esa línea
  guion FICHERO|-           maneja los formularios como un usuario y cuenta lo que ocurre

Opciones:
  --base URL                sqlite:RUTA u odbc:CADENA DE CONEXIÓN; sin ella, una base de muestra en
                            la carpeta de datos del usuario, que se crea la primera vez
  --regional NOMBRE         ajustes regionales: es-ES, en-US…; sin ella, los de la máquina
  --hoy dd/mm/aaaa          la fecha que los guiones toman por la de hoy
  --salida CARPETA          dónde quedan informes, hojas de cálculo y capturas (out)
  --escritorio              los guiones manejan ventanas de verdad, con su teclado y su ratón
  --ayuda, --version        esta ayuda, el número de versión

Acaba con 0, o con 1 y una línea en la salida de errores.
)";

namespace {

screen::Regional readRegional(const std::string& name) {
  try {
    return screen::Regional::named(name);
  } catch (const std::invalid_argument&) {
    throw Failure("--regional: no se conocen los ajustes regionales " + inQuotes(name));
  }
}

ado::Date readDate(const std::string& text) {
  const auto date = ado::Date::parseDayFirst(text);
  if (!date) throw Failure("--hoy: " + inQuotes(text) + " no es una fecha dd/mm/aaaa");
  return *date;
}

/// The arguments, one after another.
class Arguments {
 public:
  explicit Arguments(const std::vector<std::string>& all) : all_(all) {}
  bool more() const { return next_ < all_.size(); }
  const std::string& take() { return all_[next_++]; }

 private:
  const std::vector<std::string>& all_;
  std::size_t next_ = 0;
};

void readOption(const std::string& argument, Arguments& rest, CommandLine& line) {
  const auto equals = argument.find('=');
  const std::string name = argument.substr(0, equals);
  const auto value = [&]() -> std::string {
    if (equals != std::string::npos) return argument.substr(equals + 1);
    if (!rest.more()) throw Failure(name + ": falta el valor");
    return rest.take();
  };
  if (name == "--base") {
    line.base = value();
  } else if (name == "--regional") {
    line.regional = readRegional(value());
  } else if (name == "--hoy") {
    line.today = readDate(value());
  } else if (name == "--salida") {
    line.output = value();
    if (line.output.empty()) throw Failure("--salida: falta la carpeta");
  } else if (argument == "--escritorio") {
    line.desktop = true;
  } else if (argument == "--ayuda" || argument == "--help") {
    line.help = true;
  } else if (argument == "--version") {
    line.version = true;
  } else {
    throw Failure("no se conoce la opción " + inQuotes(name) + "; véase --ayuda");
  }
}

}  // namespace

CommandLine readCommandLine(const std::vector<std::string>& arguments) {
  CommandLine line;
  Arguments rest(arguments);
  while (rest.more()) {
    const std::string& argument = rest.take();
    if (argument.starts_with("--"))
      readOption(argument, rest, line);
    else if (line.order.empty() && !argument.empty())
      line.order = argument;
    else
      line.arguments.push_back(argument);
  }
  return line;
}

}  // namespace korvantes::host
