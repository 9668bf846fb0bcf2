#pragma once

#include <string_view>

namespace korvantes::plindor {

/// True for a plain column name: ASCII letters, digits and underscores, not starting with a digit.
bool esNombre(std::string_view texto);

/// True for a table name, alone or after its database and owner ("Vespara.dbo.Tivas").
bool esNombreDeTabla(std::string_view texto);

}  // namespace korvantes::plindor
