#include "runtime/screen/regional.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <stdexcept>

#include "runtime/ado/text_order.h"

namespace korvantes::screen {

namespace {

struct Settings {
  std::string_view name;
  char decimal, thousands;
};

/// The first entry of a language also applies to the language alone. American Spanish uses the
/// point in the north and in Peru, the comma in the south.
constexpr std::array kKnown{
    Settings{"es-ES", ',', '.'}, Settings{"ca-ES", ',', '.'}, Settings{"gl-ES", ',', '.'},
    Settings{"eu-ES", ',', '.'}, Settings{"pt-PT", ',', '.'}, Settings{"pt-BR", ',', '.'},
    Settings{"fr-FR", ',', ' '}, Settings{"fr-BE", ',', '.'}, Settings{"it-IT", ',', '.'},
    Settings{"de-DE", ',', '.'}, Settings{"de-AT", ',', '.'}, Settings{"nl-NL", ',', '.'},
    Settings{"en-US", '.', ','}, Settings{"en-GB", '.', ','}, Settings{"en-IE", '.', ','},
    Settings{"es-AR", ',', '.'}, Settings{"es-BO", ',', '.'}, Settings{"es-CL", ',', '.'},
    Settings{"es-CO", ',', '.'}, Settings{"es-EC", ',', '.'}, Settings{"es-PY", ',', '.'},
    Settings{"es-UY", ',', '.'}, Settings{"es-VE", ',', '.'}, Settings{"es-CR", ',', '.'},
    Settings{"es-DO", '.', ','}, Settings{"es-GT", '.', ','}, Settings{"es-HN", '.', ','},
    Settings{"es-MX", '.', ','}, Settings{"es-NI", '.', ','}, Settings{"es-PA", '.', ','},
    Settings{"es-PE", '.', ','}, Settings{"es-PR", '.', ','}, Settings{"es-SV", '.', ','},
    Settings{"es-US", '.', ','},
};

const Settings* find(std::string_view name) {
  // "es_ES.UTF-8@euro": what follows the territory does not affect numbers.
  std::string plain(name.substr(0, name.find_first_of(".@")));
  std::replace(plain.begin(), plain.end(), '_', '-');
  for (const Settings& known : kKnown) {
    const std::string_view language = known.name.substr(0, 2);
    if (ado::sameName(known.name, plain) || ado::sameName(language, plain)) return &known;
  }
  return nullptr;
}

Regional regionalOf(const Settings& settings) {
  return {std::string(settings.name), settings.decimal, settings.thousands};
}

}  // namespace

Regional Regional::named(std::string_view name) {
  if (const Settings* known = find(name)) return regionalOf(*known);
  throw std::invalid_argument("No se conoce la configuración regional «" + std::string(name) + "»");
}

Regional Regional::ofMachine() {
  for (const char* variable : {"LC_ALL", "LC_NUMERIC", "LANG"}) {
    const char* name = std::getenv(variable);
    if (name == nullptr || *name == '\0') continue;
    const Settings* known = find(name);
    return known != nullptr ? regionalOf(*known) : Regional{};
  }
  return {};
}

}  // namespace korvantes::screen
