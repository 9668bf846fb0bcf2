// outside/plindor: the host's database service and the helper of its forms, as the component uses
// them. Text values are quoted here and nowhere else.
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

  /// Clears the condition and the columns but not the table, which some callers set first. The
  /// argument is always 0.
  void LimpiaSentencia(long nReservado = 0);

  std::string Tabla;  ///< table of the statement
  /// Text that ends the statement, " WHERE …"; empty or blank for an insert.
  std::string Condicion;
  ListaCampos Campos;  ///< columns of the statement

  ado::Connection& Conexion() const { return *conexion_; }

  /// Run the statement on Conexion, inside its open transaction if there is one. True if it
  /// succeeds; on False sError says why. Deletes and updates without a condition are refused, so
  /// that a forgotten condition never empties a table, and so is a statement that cannot be built
  /// (no table, no columns).
  bool BorraFilas(std::string& sError);
  bool ActualizaFilas(std::string& sError);
  bool InsertaFila(std::string& sError, std::optional<long> nReservado = std::nullopt);
  /// Number of rows changed by the last statement sent; 0 if it failed.
  long long FilasAfectadas() const { return filasAfectadas_; }

 private:
  bool ejecuta(const std::string& sentencia, std::string& sError);
  std::shared_ptr<ado::Connection> conexion_;
  long long filasAfectadas_ = 0;
};

}  // namespace korvantes::plindor
