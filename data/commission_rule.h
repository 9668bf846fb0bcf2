#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "runtime/ado/connection.h"

namespace korvantes::data {

/// Document families of the commission.
enum Origen : std::int16_t { kPedido = 2, kAlbaran = 3 };

/// The statement that gives the commission of each line of a document, in cents: an amount less two
/// cascading header discounts, then the commission's percentage, each stage to money (four places)
/// and then to cents, halves away from zero. The rounding is the server's.
/// @param nOrigen 2 order, 3 delivery note; any other value gives an empty text
/// @param nId header key
/// @param nIdLi line key; 0 for the whole document, else nId plays no part
std::string sentenciaComision(std::int16_t nOrigen, std::int32_t nId, std::int32_t nIdLi);

/// Runs that statement and adds up its rows, in the order in which they come. The sum is not
/// rounded. Errors of the connection travel on, also the one about an empty statement.
double comisionAgente(ado::Connection& conexion, std::int16_t nOrigen, std::int32_t nId,
                      std::int32_t nIdLi);

/// The amount listed for a delivery note, as a correlated subquery on cav_id without its last
/// fragment ("FROM laV where laV_Idcav= cav_id) as …"): the sum of the lines first, discounts
/// after. It may differ by a cent from the sum of the lines' nets, and is Null without lines or
/// with a Null discount.
extern const std::string_view kNetoAlbaran;

}  // namespace korvantes::data
