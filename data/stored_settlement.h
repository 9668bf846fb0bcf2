#pragma once

#include <cstdint>
#include <string>

#include "runtime/ado/connection.h"

namespace korvantes::data {

/// The header of a stored settlement with its agent's name, Age_Nom. Empty if the settlement or its
/// agent no longer exists.
ado::Recordset storedSettlement(ado::Connection& connection, std::int32_t settlement);

/// Explains to the user why storedSettlement found none.
std::string whyNotFound(ado::Connection& connection, std::int32_t settlement);

/// How many delivery notes a stored settlement has, including those that settledStatement leaves
/// out because they are gone or have lost their invoice or customer.
std::size_t notesOf(ado::Connection& connection, std::int32_t settlement);

/// "La liquidación 7 ya no existe: …": another user has changed or deleted it.
std::string goneWords(std::int32_t settlement);

}  // namespace korvantes::data
