#pragma once

namespace korvantes::sqlite {

class Database;

/// Registers the functions and the collation that compiled statements use. Throws Error.
void registerFunctions(Database& database);

}  // namespace korvantes::sqlite
