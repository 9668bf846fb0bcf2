#pragma once

#include <memory>

#include "component/KORVAN.h"

namespace korvantes::mdoKORVANTES {

/// The KORVAN object most recently made in the process. Written by its Class_Initialize alone and
/// never cleared, so that it holds the object as long as the library stays loaded.
const std::shared_ptr<KORVAN>& oComponente();

/// MyBd of oComponente, fetched anew at each call. Throws ado::Error when there is no object or no
/// service yet.
const std::shared_ptr<plindor::BaseDatos>& MyBd();

/// MyBd of that object. Throws ado::Error when none was set yet.
const std::shared_ptr<plindor::BaseDatos>& servicioDe(const KORVAN& componente);

/// The connection of the service of oComponente.
ado::Connection& Conexion();

}  // namespace korvantes::mdoKORVANTES
