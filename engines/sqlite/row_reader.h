#pragma once

#include <memory>
#include <string_view>

#include "engines/sqlite/database.h"
#include "engines/tsql/compiler.h"
#include "runtime/ado/recordset.h"

namespace korvantes::sqlite {

/// Runs a bound SELECT to its end and gives its rows with the types it declares, so that no
/// statement stays active after a recordset was built.
ado::Recordset readRows(Statement& statement, const tsql::CompiledStatement& compiled,
                        std::string_view subject, std::shared_ptr<ado::RowWriter> writer = nullptr);

}  // namespace korvantes::sqlite
