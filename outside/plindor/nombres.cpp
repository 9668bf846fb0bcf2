#include "outside/plindor/nombres.h"

#include <algorithm>

#include "runtime/ado/characters.h"

namespace korvantes::plindor {

namespace {

bool esLetra(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
}

}  // namespace

bool esNombre(std::string_view texto) {
  return !texto.empty() && !ado::isDigit(texto.front()) &&
         std::all_of(texto.begin(), texto.end(),
                     [](char c) { return esLetra(c) || ado::isDigit(c); });
}

bool esNombreDeTabla(std::string_view texto) {
  const auto punto = texto.find('.');
  if (punto == std::string_view::npos) return esNombre(texto);
  return esNombre(texto.substr(0, punto)) && esNombreDeTabla(texto.substr(punto + 1));
}

}  // namespace korvantes::plindor
