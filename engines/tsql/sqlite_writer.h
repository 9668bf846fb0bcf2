#pragma once

#include <string>

#include "engines/tsql/typed.h"

namespace korvantes::tsql {

/// The typed tree as SQLite's SQL. Arithmetic goes through the functions of functions.h, texts
/// compare by the collation KV_TEXT, the shared database is the schema Vespara, tables are STRICT:
/// whole numbers, bits, money and decimals are INTEGER units, dates and texts TEXT, bytes BLOB.
std::string writeSqlite(const typed::Statement& statement);

/// The same for statements that define tables.
std::string writeSqlite(const typed::CreateTable& create);
std::string writeSqlite(const typed::CreateIndex& create);
std::string writeSqlite(const typed::DropTable& drop);

}  // namespace korvantes::tsql
