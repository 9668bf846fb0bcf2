#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "component/KORVAN.h"
#include "runtime/ado/transaction.h"
#include "runtime/screen/controls.h"

namespace korvantes::mdoKORVANTES {

/// The KORVAN object most recently made in the process. Only Class_Initialize writes it, and it is
/// never cleared: the object lives as long as the library stays loaded.
const std::shared_ptr<KORVAN>& oComponente();

/// MyBd of oComponente, fetched anew at each call. Throws ado::Error if there is no object or no
/// service yet.
std::shared_ptr<plindor::BaseDatos> MyBd();

/// MyBd of that object. Throws ado::Error if none has been set yet.
std::shared_ptr<plindor::BaseDatos> servicioDe(const KORVAN& componente);

/// The connection of oComponente's service, for one statement: nothing keeps it open.
ado::Connection& Conexion();

/// The same connection, kept open with its service while the pointer lives. A screen holds it from
/// Form_Load on, whatever the host sets later.
std::shared_ptr<ado::Connection> ConexionRetenida();

/// Version of the library, "6.0.3".
const char* version();

/// Rolls a transaction back after a failure. If that fails too, returns a line break and a message
/// for the user; otherwise empty.
std::string deshaz(ado::Transaction& transaccion);

/// Completes a tax number with its check letter, as the agent master does: a text that begins with
/// a digit gets the letter of its digits, after them or in place of the letter typed; one that
/// begins with a letter stays as it is; one of fewer than two characters becomes empty. Blanks at
/// either end are removed first. More than eight digits have no letter: such a text stays as typed.
std::string msCompletaNif(const std::string& sNif);

/// Stores the picture that the control shows as that of the agent. A failure is reported in a
/// message box and leaves the stored picture as it was; nothing is thrown.
void msGuardaImagen(const std::int32_t& nId, const screen::Image& imagen);

/// Shows the stored picture of the agent in the control, which is left empty if there is none. A
/// failure is reported in a message box and also leaves it empty; nothing is thrown.
void msCargaImagen(const std::int32_t& nId, screen::Image& imagen);

}  // namespace korvantes::mdoKORVANTES
