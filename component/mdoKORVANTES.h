#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "component/KORVAN.h"
#include "runtime/ado/transaction.h"
#include "runtime/screen/controls.h"

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

/// Rolls a transaction back after a failure. Returns a line break and a sentence for the user if
/// that fails too, otherwise the empty text.
std::string deshaz(ado::Transaction& transaccion);

/// A tax number with its check letter, as the agent master completes it: a text that begins with a
/// digit gets the letter of its digits, added at the end or in place of the letter typed; one that
/// begins with a letter is left as it is; one of fewer than two characters becomes empty. Leading
/// and trailing blanks are removed first. More than eight digits have no letter: such a text is
/// left as typed.
std::string msCompletaNif(const std::string& sNif);

/// Stores the picture that the control shows as that of the agent. A failure is shown in a message
/// box and leaves the stored picture as it was; nothing is thrown.
void msGuardaImagen(const std::int32_t& nId, const screen::Image& imagen);

/// Shows the stored picture of the agent in the control, or nothing if there is none. A failure is
/// shown in a message box and leaves the control empty; nothing is thrown.
void msCargaImagen(const std::int32_t& nId, screen::Image& imagen);

}  // namespace korvantes::mdoKORVANTES
