#pragma once

#include <string>

namespace korvantes::sqlite {

/// The absolute paths of a company's database file and of its partner.
struct DatabaseFiles {
  std::string file;
  std::string partner;  ///< empty when there is none
};

/// Finds the two files, or makes those that are missing, readable and writable by their owner
/// alone. Links to folders are followed; a link in the place of a file is an Error, as is anything
/// else that is no ordinary file. Without `create` a missing file is an Error, a missing partner is
/// not: the company's own tables can be used without it.
DatabaseFiles findDatabaseFiles(const std::string& path, bool create);

}  // namespace korvantes::sqlite
