#include "engines/sqlite/failure_words.h"

#include <array>
#include <cerrno>
#include <sqlite3.h>

#include "runtime/ado/system_words.h"

namespace korvantes::sqlite {

namespace {

using ado::ErrorKind;

struct Sentence {
  int code;  ///< primary result code
  ErrorKind kind;
  const char* words;
};

constexpr std::array kSentences{
    Sentence{SQLITE_BUSY, ErrorKind::Busy, "La base de datos está ocupada por otro usuario"},
    Sentence{SQLITE_LOCKED, ErrorKind::Busy, "La base de datos está ocupada por otro usuario"},
    Sentence{SQLITE_FULL, ErrorKind::DiskFull, "El disco está lleno"},
    Sentence{SQLITE_READONLY, ErrorKind::NotPermitted, "La base de datos es de solo lectura"},
    Sentence{SQLITE_PERM, ErrorKind::NotPermitted, "No hay permiso para usar la base de datos"},
    Sentence{SQLITE_NOTADB, ErrorKind::Damaged, "El fichero no es una base de datos"},
    Sentence{SQLITE_CORRUPT, ErrorKind::Damaged, "La base de datos está dañada"},
    Sentence{SQLITE_TOOBIG, ErrorKind::Overflow, "Un valor es demasiado grande"},
    Sentence{SQLITE_NOMEM, ErrorKind::Other, "No hay memoria suficiente"},
};

/// For failures of a system call; the system's reason follows.
constexpr std::array kSystemSentences{
    Sentence{SQLITE_IOERR, ErrorKind::Other, "Error de lectura o escritura en el disco"},
    Sentence{SQLITE_CANTOPEN, ErrorKind::Other, "No se puede abrir la base de datos"},
};

/// "Lcd.Lcd_IdCav" or "T.A, T.B", as SQLite names the columns of a constraint.
struct Columns {
  std::string table;
  std::string names;
};

Columns columnsIn(std::string_view words) {
  Columns columns;
  const auto colon = words.find(": ");
  if (colon == std::string_view::npos) return columns;
  std::string_view rest = words.substr(colon + 2);
  while (!rest.empty()) {
    const auto comma = rest.find(", ");
    const std::string_view name = rest.substr(0, comma);
    const auto dot = name.find('.');
    if (dot == std::string_view::npos) return {};
    columns.table = name.substr(0, dot);
    columns.names +=
        (columns.names.empty() ? "«" : ", «") + std::string(name.substr(dot + 1)) + "»";
    rest = comma == std::string_view::npos ? std::string_view() : rest.substr(comma + 2);
  }
  return columns;
}

ado::Error brokenConstraint(int code, const std::string& words, std::string_view subject) {
  const Columns columns = columnsIn(words);
  const bool known = !columns.table.empty();
  switch (code) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
      return {ErrorKind::Duplicate, code,
              known ? "Ya existe en la tabla «" + columns.table +
                          "» una fila con el mismo valor de " + columns.names
                    : "Ya existe una fila con esa clave",
              subject};
    case SQLITE_CONSTRAINT_NOTNULL:
      if (!known) break;
      return {ErrorKind::Constraint, code,
              "La columna " + columns.names + " de la tabla «" + columns.table +
                  "» no puede quedar vacía",
              subject};
    default:
      break;
  }
  return {ErrorKind::Constraint, code, "Los datos no cumplen una restricción de la tabla", subject};
}

}  // namespace

ado::Error describe(int code, const std::string& words, int systemError, std::string_view subject) {
  const int primary = code & 0xFF;
  if (primary == SQLITE_CONSTRAINT) return brokenConstraint(code, words, subject);
  for (const Sentence& sentence : kSentences) {
    if (sentence.code == primary) return {sentence.kind, code, sentence.words, subject};
  }
  for (const Sentence& sentence : kSystemSentences) {
    if (sentence.code != primary) continue;
    if (systemError == 0) return {sentence.kind, code, sentence.words, subject};
    return {ado::systemErrorKind(systemError), code,
            sentence.words + (": " + ado::systemWords(systemError)), subject};
  }
  return {ErrorKind::Other, code, "Error de la base de datos: " + words, subject};
}

ado::Error fileReplaced(const std::string& path, std::string_view subject) {
  return {ErrorKind::FileReplaced, SQLITE_READONLY_DBMOVED,
          "El fichero «" + path +
              "» ha sido borrado, movido o sustituido mientras el programa lo usaba: no se ha "
              "guardado nada; devuélvalo a su sitio o vuelva a abrir la base de datos",
          subject};
}

}  // namespace korvantes::sqlite
