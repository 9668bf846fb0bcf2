#pragma once

namespace korvantes::sqlite {

class Database;

/// Gives the database the functions and the text order that compiled statements call for.
/// Throws Error.
void registerFunctions(Database& database);

}  // namespace korvantes::sqlite
