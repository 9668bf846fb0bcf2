#include "component/mdoKORVANTES.h"

#include "component/component.h"
#include "runtime/ado/error.h"

namespace korvantes {

namespace {

/// The runtime's number for an object reference that was never set.
constexpr long kReferenceNotSet = 91;

/// Local to this file, so that only Class_Initialize can write it.
std::shared_ptr<KORVAN>& componente() {
  static std::shared_ptr<KORVAN> objeto;
  return objeto;
}

}  // namespace

void Component::Class_Initialize() {
  componente() = shared_from_this();
}

namespace mdoKORVANTES {

const std::shared_ptr<KORVAN>& oComponente() {
  return componente();
}

std::shared_ptr<plindor::BaseDatos> MyBd() {
  if (!oComponente()) {
    throw ado::Error(kReferenceNotSet, "No se ha creado todavía ningún componente KORVANTES");
  }
  return servicioDe(*oComponente());
}

std::shared_ptr<plindor::BaseDatos> servicioDe(const KORVAN& componente) {
  std::shared_ptr<plindor::BaseDatos> servicio = componente.MyBd();
  if (!servicio) {
    throw ado::Error(kReferenceNotSet,
                     "El componente KORVANTES no tiene base de datos: hay que asignar MyBd antes "
                     "de usarlo");
  }
  return servicio;
}

ado::Connection& Conexion() {
  return MyBd()->Conexion();
}

std::shared_ptr<ado::Connection> ConexionRetenida() {
  const std::shared_ptr<plindor::BaseDatos> servicio = MyBd();
  return {servicio, &servicio->Conexion()};
}

const char* version() {
  return KORVANTES_VERSION;
}

std::string deshaz(ado::Transaction& transaccion) {
  const std::optional<ado::Error> fallo = transaccion.rollBack();
  if (!fallo) return {};
  return std::string("\r\nTampoco se han podido deshacer los cambios: ") + fallo->what();
}

}  // namespace mdoKORVANTES

}  // namespace korvantes
