#pragma once

#include <string_view>

namespace korvantes::plindor {

/// True for a plain name of a column: ASCII letters, digits and underscores, not beginning with a
/// digit.
bool esNombre(std::string_view texto);

/// True for a name of a table, alone or behind its database and owner ("Vespara.dbo.Tivas").
bool esNombreDeTabla(std::string_view texto);

}  // namespace korvantes::plindor
