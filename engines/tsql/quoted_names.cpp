#include "engines/tsql/quoted_names.h"

namespace korvantes::tsql {

namespace {

std::string between(char mark, std::string_view text) {
  std::string quoted(1, mark);
  for (const char c : text) {
    quoted += c;
    if (c == mark) quoted += c;
  }
  return quoted + mark;
}

}  // namespace

std::string quotedName(std::string_view name) {
  return between('"', name);
}

std::string qualifiedName(std::string_view database, std::string_view table) {
  return database.empty() ? quotedName(table) : quotedName(database) + "." + quotedName(table);
}

std::string quotedText(std::string_view text) {
  return between('\'', text);
}

}  // namespace korvantes::tsql
