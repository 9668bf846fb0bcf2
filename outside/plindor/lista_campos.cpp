#include "outside/plindor/lista_campos.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <optional>

#include "outside/plindor/nombres.h"
#include "runtime/ado/characters.h"
#include "runtime/ado/date.h"
#include "runtime/ado/error.h"
#include "runtime/ado/text_order.h"
#include "runtime/screen/conversions.h"

namespace korvantes::plindor {

namespace {

using ado::Variant;
using Kind = Variant::Kind;

constexpr const char* kNulo = "Null";

/// The value for a message to the user: short, on one line.
std::string citado(const Variant& valor) {
  if (valor.kind() == Kind::Bytes) return "datos binarios";
  return "«" + ado::subjectOf(screen::CStr(valor)) + "»";
}

[[noreturn]] void rechaza(const std::string& campo, const Variant& valor, const char* motivo) {
  throw ado::ConversionError(campo + ": " + citado(valor) + " " + motivo);
}

/// Accepts digits with an optional minus sign and nothing else. A number beyond 64 bits counts as
/// the largest one, so that it is not mistaken for a text that is not a number.
std::optional<std::int64_t> enteroDeTexto(std::string_view texto) {
  texto = ado::trimmed(texto);
  std::int64_t numero = 0;
  const auto [fin, error] = std::from_chars(texto.data(), texto.data() + texto.size(), numero);
  if (fin != texto.data() + texto.size()) return std::nullopt;
  if (error == std::errc::result_out_of_range) return std::numeric_limits<std::int64_t>::max();
  if (error != std::errc{}) return std::nullopt;
  return numero;
}

std::optional<std::int64_t> enteroDeDouble(double numero) {
  if (!std::isfinite(numero) || numero != std::trunc(numero)) return std::nullopt;
  if (std::fabs(numero) > 1e18) return std::numeric_limits<std::int64_t>::max();
  return static_cast<std::int64_t>(numero);
}

std::optional<std::int64_t> enteroDeDecimal(const ado::Decimal& numero) {
  const ado::Decimal entero = numero.rescaled(0);
  if (entero != numero) return std::nullopt;
  return entero.units();
}

std::optional<std::int64_t> enteroDe(const Variant& valor) {
  switch (valor.kind()) {
    case Kind::Whole:
      return valor.whole();
    case Kind::Boolean:
      return valor.boolean() ? 1 : 0;
    case Kind::Double:
      return enteroDeDouble(valor.asDouble());
    case Kind::Decimal:
      return enteroDeDecimal(valor.decimal());
    case Kind::Text:
      return enteroDeTexto(valor.text());
    default:
      return std::nullopt;
  }
}

/// Whole columns have 32 bits.
std::string escribeEntero(const std::string& campo, const Variant& valor) {
  const std::optional<std::int64_t> numero = enteroDe(valor);
  if (!numero) rechaza(campo, valor, "no es un número entero");
  if (*numero > std::numeric_limits<std::int32_t>::max() ||
      *numero < std::numeric_limits<std::int32_t>::min()) {
    rechaza(campo, valor, "es un número demasiado grande");
  }
  return std::to_string(*numero);
}

std::string escribeDoble(const std::string& campo, const Variant& valor, int nDecimales) {
  try {
    switch (valor.kind()) {
      case Kind::Whole:
        return ado::Decimal(valor.whole(), 0).rescaled(nDecimales).text();
      case Kind::Decimal:
        return valor.decimal().rescaled(nDecimales).text();
      case Kind::Boolean:
      case Kind::Double:
        return ado::decimalFromDouble(valor.asDouble(), nDecimales).text();
      case Kind::Text:
        return ado::decimalFromDouble(screen::CDbl(valor.text()), nDecimales).text();
      default:
        break;
    }
  } catch (const ado::ConversionError& error) {
    throw ado::ConversionError(campo + ": " + error.what());
  }
  rechaza(campo, valor, "no es un número");
}

/// Puts the text in single quotes and doubles the quotes inside it.
std::string entrecomilla(std::string_view texto) {
  std::string salida = "'";
  for (const char c : texto) {
    if (c == '\'') salida += '\'';
    salida += c;
  }
  return salida += "'";
}

std::string escribeTexto(const std::string& campo, const Variant& valor) {
  static const screen::Regional conPunto = screen::Regional::named("en-US");
  switch (valor.kind()) {
    case Kind::Text:
      // Engines end the statement there, in the middle of the text.
      if (valor.text().find('\0') != std::string::npos) {
        throw ado::ConversionError(campo + ": el texto contiene un carácter nulo");
      }
      return entrecomilla(valor.text());
    case Kind::Boolean:
      return entrecomilla(valor.boolean() ? "1" : "0");
    case Kind::Bytes:
      rechaza(campo, valor, "no son un texto");
    default:
      return entrecomilla(screen::CStr(valor, conPunto));
  }
}

std::string escribeFecha(const std::string& campo, const Variant& valor) {
  std::optional<ado::Date> fecha;
  if (valor.kind() == Kind::Date) fecha = valor.date();
  if (valor.kind() == Kind::Text) fecha = ado::Date::parseDayFirst(valor.text());
  if (!fecha) rechaza(campo, valor, "no es una fecha válida");
  return entrecomilla(fecha->dayFirst());
}

std::string escribeLiteral(const std::string& campo, const Variant& valor) {
  if (valor.kind() != Kind::Text || !ado::sameName(valor.text(), kNulo)) {
    rechaza(campo, valor, "no se admite como literal");
  }
  return kNulo;
}

std::string escribe(const std::string& campo, long nTipo, const Variant& valor, int nDecimales) {
  switch (nTipo) {
    case ListaCampos::Entero:
      return escribeEntero(campo, valor);
    case ListaCampos::Doble:
      return escribeDoble(campo, valor, nDecimales);
    case ListaCampos::Texto:
      return escribeTexto(campo, valor);
    case ListaCampos::Fecha:
      return escribeFecha(campo, valor);
    case ListaCampos::Literal:
      return escribeLiteral(campo, valor);
    default:
      throw ado::ConversionError(campo + ": " + std::to_string(nTipo) +
                                 " no es un tipo de columna");
  }
}

}  // namespace

void ListaCampos::AgregaCampo(const std::string& sCampo, long nTipo, const ado::Variant& vValor,
                              int nDecimales) {
  if (!esNombre(sCampo)) {
    throw ado::ConversionError("«" + ado::subjectOf(sCampo) + "» no es un nombre de columna");
  }
  campos_.push_back({sCampo, vValor.isNull() ? kNulo : escribe(sCampo, nTipo, vValor, nDecimales)});
}

}  // namespace korvantes::plindor
