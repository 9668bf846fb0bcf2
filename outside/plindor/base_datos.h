// outside/plindor: the host's database service and the helpers of its forms, as the component uses
// them. Text values are quoted here, and only here.
#pragma once

#include <memory>
#include <optional>
#include <string>

#include "outside/plindor/lista_campos.h"
#include "runtime/ado/connection.h"

namespace korvantes::plindor {

/// The database service: hands out the open connection, and builds and runs simple statements on
/// it.
class BaseDatos {
 public:
  /// Throws ado::Error without a connection.
  explicit BaseDatos(std::shared_ptr<ado::Connection> conexion);

  /// Forgets condition and columns; the table stays, as some callers name it first. The number is
  /// always 0.
  void LimpiaSentencia(long nReservado = 0);

  std::string Tabla;  ///< table of the statement
  /// Text behind the statement, " WHERE …"; empty or a blank for an insert.
  std::string Condicion;
  ListaCampos Campos;  ///< its columns

  ado::Connection& Conexion() const { return *conexion_; }

  /// Run the statement on Conexion, inside its open transaction if there is one. True when it is
  /// done; on False sError holds the engine's words. Deleting or updating without a condition is
  /// refused (False), so that a forgotten condition never empties a table. A statement that cannot
  /// be built (no table, no columns) gives False too.
  bool BorraFilas(std::string& sError);
  bool ActualizaFilas(std::string& sError);
  bool InsertaFila(std::string& sError, std::optional<long> nReservado = std::nullopt);
  /// Rows that the last statement sent has changed; 0 when it failed.
  long long FilasAfectadas() const { return filasAfectadas_; }

 private:
  bool ejecuta(const std::string& sentencia, std::string& sError);
  std::shared_ptr<ado::Connection> conexion_;
  long long filasAfectadas_ = 0;
};

}  // namespace korvantes::plindor
