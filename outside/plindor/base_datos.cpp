#include "outside/plindor/base_datos.h"

#include "outside/plindor/nombres.h"
#include "runtime/ado/characters.h"
#include "runtime/ado/text_order.h"

namespace korvantes::plindor {

namespace {

/// True if the text begins with the word WHERE followed by something.
bool esCondicion(std::string_view texto) {
  constexpr std::string_view kWhere = "WHERE";
  texto = ado::trimmed(texto);
  return ado::sameName(texto.substr(0, kWhere.size()), kWhere) &&
         !ado::trimmed(texto.substr(kWhere.size())).empty() &&
         !esNombre(texto.substr(kWhere.size(), 1));
}

/// Why the statement cannot be built; empty if it can.
std::string faltaTabla(const std::string& tabla) {
  if (tabla.empty()) return "No se ha indicado la tabla";
  if (!esNombreDeTabla(tabla)) return "«" + tabla + "» no es un nombre de tabla";
  return {};
}

std::string faltaCondicion(const std::string& condicion, const std::string& tabla) {
  if (esCondicion(condicion)) return {};
  return "Operación rechazada: afectaría a todas las filas de la tabla «" + tabla + "»";
}

std::string faltanCampos(const ListaCampos& campos) {
  return campos.campos().empty() ? "No se ha indicado ninguna columna" : "";
}

/// The condition with a leading blank.
std::string detras(const std::string& condicion) {
  return (condicion.front() == ' ' ? "" : " ") + condicion;
}

}  // namespace

BaseDatos::BaseDatos(std::shared_ptr<ado::Connection> conexion) : conexion_(std::move(conexion)) {
  if (!conexion_) throw ado::Error(0, "El servicio de base de datos necesita una conexión abierta");
}

void BaseDatos::LimpiaSentencia(long /*nReservado*/) {
  Condicion.clear();
  Campos.vaciar();
}

bool BaseDatos::BorraFilas(std::string& sError) {
  sError = faltaTabla(Tabla);
  if (sError.empty()) sError = faltaCondicion(Condicion, Tabla);
  if (!sError.empty()) return false;
  return ejecuta("DELETE FROM " + Tabla + detras(Condicion), sError);
}

bool BaseDatos::ActualizaFilas(std::string& sError) {
  sError = faltaTabla(Tabla);
  if (sError.empty()) sError = faltanCampos(Campos);
  if (sError.empty()) sError = faltaCondicion(Condicion, Tabla);
  if (!sError.empty()) return false;

  std::string asignaciones;
  for (const ListaCampos::Campo& campo : Campos.campos()) {
    if (!asignaciones.empty()) asignaciones += ", ";
    asignaciones += campo.nombre + " = " + campo.valor;
  }
  return ejecuta("UPDATE " + Tabla + " SET " + asignaciones + detras(Condicion), sError);
}

bool BaseDatos::InsertaFila(std::string& sError, std::optional<long> /*nReservado*/) {
  sError = faltaTabla(Tabla);
  if (sError.empty()) sError = faltanCampos(Campos);
  if (sError.empty() && !ado::trimmed(Condicion).empty())
    sError = "Operación rechazada: al añadir una fila no se eligen filas existentes";
  if (!sError.empty()) return false;

  std::string nombres;
  std::string valores;
  for (const ListaCampos::Campo& campo : Campos.campos()) {
    if (!nombres.empty()) {
      nombres += ", ";
      valores += ", ";
    }
    nombres += campo.nombre;
    valores += campo.valor;
  }
  return ejecuta("INSERT INTO " + Tabla + " (" + nombres + ") VALUES (" + valores + ")", sError);
}

bool BaseDatos::ejecuta(const std::string& sentencia, std::string& sError) {
  filasAfectadas_ = 0;
  try {
    conexion_->Execute(sentencia, &filasAfectadas_);
    return true;
  } catch (const ado::Error& error) {
    sError = error.what();
    return false;
  }
}

}  // namespace korvantes::plindor
