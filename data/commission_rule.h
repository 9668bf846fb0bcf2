#pragma once

#include <cstdint>
#include <string>

#include "runtime/ado/connection.h"

namespace korvantes::data {

/// Document families of the commission.
enum Origen : std::int16_t { kPedido = 2, kAlbaran = 3 };

/// The statement that gives the commission of each line of a document, in cents, by the rule of
/// data/money_rule_sql.h.
/// @param nOrigen 2 order, 3 delivery note; any other value gives an empty text
/// @param nId header key
/// @param nIdLi line key; 0 for the whole document, otherwise nId plays no part
std::string sentenciaComision(std::int16_t nOrigen, std::int32_t nId, std::int32_t nIdLi);

/// Runs that statement: the exact sum of its rows. Errors of the connection pass through, including
/// the one about an empty statement; ado::Error of kind Overflow if the sum does not fit.
ado::Decimal comisionExacta(ado::Connection& conexion, std::int16_t nOrigen, std::int32_t nId,
                            std::int32_t nIdLi);
/// The double nearest to that sum.
double comisionAgente(ado::Connection& conexion, std::int16_t nOrigen, std::int32_t nId,
                      std::int32_t nIdLi);

}  // namespace korvantes::data
