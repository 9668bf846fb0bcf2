#pragma once

#include "outside/plindor/util_formulario.h"
#include "runtime/ado/recordset.h"

namespace korvantes::report {

/// Turns rows of delivery notes into rows of invoices, in a recordset of 19 fields built by hand.
///
/// Rows of one invoice, agent and settlement date within a run of rows that tie in the statement's
/// order become one. The result keeps the settlement of the first, and has the sum of the
/// commissions (added in exact decimals and converted once) and its percentage of the invoice's
/// gross base. Notes without lines have a Null commission, which adds nothing; an invoice that has
/// only such notes has neither commission nor percentage.
///
/// @param rsFilas the rows of the statement by invoice, starting at its current row; left at EOF
/// @param bPorFecha invoice before customer, as in the statement; else customer first
/// @return a recordset on its last row; a closed one if there are no rows
ado::Recordset facturasDe(ado::Recordset rsFilas, bool bPorFecha,
                          const plindor::UtilFormulario& oUtil);

}  // namespace korvantes::report
