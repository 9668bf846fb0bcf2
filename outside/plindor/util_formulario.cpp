#include "outside/plindor/util_formulario.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "runtime/ado/characters.h"
#include "runtime/ado/error.h"
#include "runtime/ado/text_order.h"
#include "runtime/ado/utf8.h"
#include "runtime/screen/conversions.h"
#include "runtime/screen/desktop.h"

namespace korvantes::plindor {

namespace {

/// Separates the columns of a row that BuscaEnLista returns.
constexpr char kSeparador = 1;
constexpr std::string_view kMascaraFecha = "dd/mm/yyyy";
/// Below this, keys are control characters: Backspace, Tab, Enter, Escape.
constexpr int kPrimerCaracter = 32;
/// Decimal digits that every double preserves.
constexpr int kDigitos = 15;

/// The date in a field: ddmmyyyy, ddmmyy or with separators.
std::optional<ado::Date> fechaDe(std::string_view texto) {
  texto = ado::trimmed(texto);
  if (!ado::allDigits(texto)) return screen::toDate(texto);
  if (texto.size() != 8 && texto.size() != 6) return std::nullopt;
  const std::string dia(texto.substr(0, 2));
  const std::string mes(texto.substr(2, 2));
  const std::string anno(texto.substr(4));
  return screen::toDate(dia + '/' + mes + '/' + anno);
}

/// The text formatted by the mask; unchanged if it does not fit.
std::string conMascara(const std::string& texto, std::string_view mascara) {
  if (ado::sameName(mascara, kMascaraFecha)) {
    const std::optional<ado::Date> fecha = fechaDe(texto);
    return fecha ? fecha->dayFirst() : texto;
  }
  const std::optional<double> numero = screen::parseNumber(texto);
  return numero ? screen::Format(*numero, mascara) : texto;
}

/// The text of the field without its selection, which the next character replaces.
std::u32string restoDe(const screen::TextBox& control) {
  std::u32string texto = ado::toCodePoints(control.Text());
  const auto limite = static_cast<int>(texto.size());
  const int inicio = std::clamp(control.SelStart(), 0, limite);
  const int largo = std::clamp(control.SelLength(), 0, limite - inicio);
  texto.erase(static_cast<std::size_t>(inicio), static_cast<std::size_t>(largo));
  return texto;
}

/// The characters of the text that the field accepts.
std::string depurado(const std::string& texto, bool soloDigitos, char separador) {
  std::string salida;
  bool separado = false;
  for (const char c : texto) {
    if (ado::isDigit(c)) {
      salida += c;
    } else if (!soloDigitos && !separado && (c == separador || c == '.')) {
      salida += separador;
      separado = true;
    }
  }
  return salida;
}

}  // namespace

std::string UtilFormulario::LetraNif(const std::string& sNif, const std::string& sVacio) const {
  constexpr std::string_view kLetras = "TRWAGMYFPDXBNJZSQVHLCKE";
  constexpr std::string_view kExtranjeros = "XYZxyz";
  constexpr int kMaximo = 8;

  int numero = 0;
  if (!sNif.empty()) {
    const auto letra = kExtranjeros.find(sNif.front());
    if (letra != std::string_view::npos) numero = static_cast<int>(letra % 3);
  }
  int digitos = 0;
  for (const char c : sNif) {
    if (!ado::isDigit(c)) continue;
    if (++digitos > kMaximo) return sVacio;
    numero = numero * 10 + (c - '0');
  }
  if (digitos == 0) return sVacio;
  return std::string(1, kLetras[static_cast<std::size_t>(numero) % kLetras.size()]);
}

double UtilFormulario::Redondea(double dValor, long nDecimales) const {
  if (nDecimales < 0) throw ado::ConversionError("No se puede redondear a menos de 0 decimales");
  if (!std::isfinite(dValor)) throw ado::ConversionError("El valor no es un número");
  if (dValor == 0) return 0;
  // The fifteenth digit of numbers this large is to the left of the point.
  if (std::fabs(dValor) >= 1e15) return dValor;
  // Places after the last significant digit are zeros; omitting them keeps the exact decimal within
  // its range.
  const auto orden = static_cast<long>(std::floor(std::log10(std::fabs(dValor))));
  const long lugares = std::min({nDecimales, kDigitos - orden, long{ado::Decimal::kMaxScale}});
  return ado::decimalFromDouble(dValor, static_cast<int>(lugares)).toDouble();
}

void UtilFormulario::AlPerderFoco(screen::TextBox& oControl, std::string_view sFormato) const {
  oControl.BackColor = static_cast<screen::Color>(ColorNormal);
  if (sFormato.empty() || oControl.Text().empty()) return;
  oControl.Text = conMascara(oControl.Text(), sFormato);
}

void UtilFormulario::AlRecibirFoco(screen::TextBox& oControl, std::string_view /*sFormato*/) const {
  oControl.BackColor = static_cast<screen::Color>(ColorFoco);
}

void UtilFormulario::AlCambiarTexto(screen::TextBox& oControl, ado::Variant& /*nEstado*/,
                                    bool bFlag, const std::string& /*sVacio*/) const {
  // A stored value shown by the program is never shortened: saving the form would lose the rest.
  if (oControl.form().ActiveControl() != &oControl) return;
  const std::string limpio =
      depurado(oControl.Text(), bFlag, screen::currentRegional().decimalSeparator);
  oControl.Text = limpio;
}

void UtilFormulario::FiltraTecla(const screen::TextBox& oControl, int& nTecla, bool bFlag) const {
  if (nTecla < kPrimerCaracter || ado::isDigit(nTecla)) return;
  if (bFlag) {
    if (nTecla != '/') nTecla = 0;
    return;
  }
  const char separador = screen::currentRegional().decimalSeparator;
  const bool esSeparador = nTecla == '.' || nTecla == separador;
  const bool repetido =
      restoDe(oControl).find(static_cast<char32_t>(separador)) != std::u32string::npos;
  nTecla = esSeparador && !repetido ? separador : 0;
}

std::string UtilFormulario::BuscaEnLista(const std::string& sSql, const std::string& sOrden,
                                         const std::string& sCol1, const std::string& sCol2,
                                         const std::string& sTitulo, long nAncho1, long nAncho2,
                                         long /*n0*/) const {
  if (!conexion_) throw ado::Error(0, "La búsqueda no tiene conexión a la base de datos");
  const ado::Recordset filas = conexion_->Execute(sSql + " ORDER BY " + sOrden);
  const std::size_t columnas = filas.Fields().Count();
  if (columnas < 3) {
    throw ado::Error(0, "La búsqueda necesita una columna de relleno, un código y un nombre", sSql);
  }

  screen::ListDialog lista{.title = sTitulo,
                           .codeTitle = sCol1,
                           .nameTitle = sCol2,
                           .codeWidth = static_cast<int>(nAncho1),
                           .nameWidth = static_cast<int>(nAncho2),
                           .rows = {}};
  lista.rows.reserve(filas.RecordCount());
  for (std::size_t fila = 0; fila < filas.RecordCount(); ++fila) {
    lista.rows.push_back({screen::CStr(filas.cell(fila, 1)), screen::CStr(filas.cell(fila, 2))});
  }
  const auto elegida = screen::Desktop::current().chooseFromList(lista);
  if (!elegida) return {};

  std::string resultado = screen::CStr(filas.cell(*elegida, 0));
  for (std::size_t columna = 1; columna < columnas; ++columna) {
    resultado += kSeparador + screen::CStr(filas.cell(*elegida, columna));
  }
  return resultado;
}

std::string elementoDe(const std::string& sFila, int nColumna) {
  std::size_t desde = 0;
  for (; nColumna > 0; --nColumna) desde = sFila.find(kSeparador, desde) + 1;
  return sFila.substr(desde, sFila.find(kSeparador, desde) - desde);
}

}  // namespace korvantes::plindor
