#include "agents/code_lists.h"

#include <charconv>

#include "runtime/ado/characters.h"
#include "runtime/ado/utf8.h"

namespace korvantes::agents {

namespace {

std::optional<std::int32_t> numeroDe(std::string_view texto) {
  texto = ado::trimmed(texto);
  if (texto.empty() || !ado::allDigits(texto)) return {};
  std::int32_t numero = 0;
  const auto leido = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
  if (leido.ec != std::errc{}) return {};
  return numero;
}

}  // namespace

std::optional<std::int32_t> codigoInicial(std::string_view entrada, std::size_t nCaracteres) {
  return numeroDe(ado::firstCharacters(entrada, nCaracteres));
}

std::optional<std::int32_t> codigoGuardado(const ado::Variant& valor) {
  if (valor.isNull()) return {};
  if (valor.kind() == ado::Variant::Kind::Text) return numeroDe(valor.text());
  return valor.asLong();
}

std::optional<int> entradaDe(const screen::ComboBox& lista, std::size_t nCaracteres,
                             std::int32_t codigo) {
  for (std::size_t entrada = 0; entrada < lista.list().size(); ++entrada)
    if (codigoInicial(lista.list()[entrada], nCaracteres) == codigo)
      return static_cast<int>(entrada);
  return {};
}

}  // namespace korvantes::agents
