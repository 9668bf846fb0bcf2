#pragma once

#include <memory>
#include <string_view>

#include "engines/sqlite/database.h"
#include "engines/tsql/compiler.h"
#include "runtime/ado/recordset.h"

namespace korvantes::sqlite {

/// Runs a bound SELECT to its end and returns its rows with the declared types, so that no
/// statement stays active once a recordset is built.
ado::Recordset readRows(Statement& statement, const tsql::CompiledStatement& compiled,
                        std::string_view subject, std::shared_ptr<ado::RowWriter> writer = nullptr);

}  // namespace korvantes::sqlite
