#include "component/mdoKORVANTES.h"
#include "outside/plindor/util_formulario.h"
#include "runtime/ado/utf8.h"
#include "runtime/screen/conversions.h"

namespace korvantes::mdoKORVANTES {

namespace {

bool esNumerico(std::string_view caracter) {
  return screen::IsNumeric(caracter);
}

/// Pasted text may have blanks around it; a blank after a complete number would be taken for its
/// letter, and a second letter added.
std::string_view sinBlancos(std::string_view texto) {
  const std::u32string caracteres = ado::toCodePoints(texto);
  constexpr std::u32string_view kBlancos = U" \t\u00A0";
  const auto primero = caracteres.find_first_not_of(kBlancos);
  if (primero == std::u32string::npos) return {};
  texto = ado::firstCharacters(texto, caracteres.find_last_not_of(kBlancos) + 1);
  return texto.substr(ado::byteOffset(texto, primero));
}

}  // namespace

std::string msCompletaNif(const std::string& sNif) {
  const std::string sTexto(sinBlancos(sNif));
  const std::size_t nCaracteres = ado::characterCount(sTexto);
  if (nCaracteres < 2) return {};
  const std::string sSinUltimo(ado::firstCharacters(sTexto, nCaracteres - 1));
  const bool bNumeroDelante = esNumerico(ado::firstCharacters(sTexto, 1));
  const bool bNumeroDetras = esNumerico(sTexto.substr(sSinUltimo.size()));
  if (!bNumeroDelante) return sTexto;

  const std::string& sNumero = bNumeroDetras ? sTexto : sSinUltimo;
  const std::string sLetra = plindor::UtilFormulario().LetraNif(sNumero, "");
  // Too many digits have no letter; keep the one that was typed.
  return sLetra.empty() ? sTexto : sNumero + sLetra;
}

}  // namespace korvantes::mdoKORVANTES
