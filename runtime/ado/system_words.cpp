#include "runtime/ado/system_words.h"

#include <cerrno>

namespace korvantes::ado {

std::string systemWords(const std::error_code& code) {
  const struct {
    std::errc error;
    const char* words;
  } known[] = {
      {std::errc::permission_denied, "no hay permiso"},
      {std::errc::operation_not_permitted, "no hay permiso"},
      {std::errc::no_such_file_or_directory, "no existe"},
      {std::errc::not_a_directory, "una parte de la ruta no es una carpeta"},
      {std::errc::is_a_directory, "es una carpeta"},
      {std::errc::file_exists, "ya existe"},
      {std::errc::file_too_large, "el fichero es demasiado grande"},
      {std::errc::read_only_file_system, "el disco es de solo lectura"},
      {std::errc::no_space_on_device, "el disco está lleno"},
      {std::errc::too_many_files_open, "hay demasiados ficheros abiertos"},
      {std::errc::too_many_symbolic_link_levels, "es un enlace simbólico"},
      {std::errc::filename_too_long, "el nombre es demasiado largo"},
      {std::errc::io_error, "el disco ha fallado"},
  };
  for (const auto& each : known)
    if (code == each.error) return each.words;
  if (code == std::error_code(EDQUOT, std::generic_category()))
    return "el espacio asignado en el disco está agotado";
  return "error " + std::to_string(code.value()) + " del sistema";
}

std::string systemWords(int errorNumber) {
  return systemWords(std::error_code(errorNumber, std::generic_category()));
}

ErrorKind systemErrorKind(int errorNumber) {
  switch (errorNumber) {
    case ENOSPC:
    case EDQUOT:
      return ErrorKind::DiskFull;
    case EACCES:
    case EPERM:
    case EROFS:
      return ErrorKind::NotPermitted;
    default:
      return ErrorKind::Other;
  }
}

}  // namespace korvantes::ado
