#pragma once

#include <string>

namespace korvantes::sqlite {

/// The absolute paths of a company's database file and of the shared one beside it. Neither has to
/// exist.
struct DatabaseFiles {
  std::string file;
  std::string partner;
};

/// Resolves links to folders. Throws Error if the folder does not exist or the path names no file.
DatabaseFiles databaseFilesOf(const std::string& path);

/// What a path holds.
enum class Content {
  Missing,
  Empty,    ///< a file of 0 bytes
  Blank,    ///< a database in which nothing was ever declared
  Ours,     ///< a database with a catalogue of ours
  Foreign,  ///< a database of another program
};

/// Inspects a file without changing a byte of it and without creating a file next to it. Throws
/// Error for a link, for anything else that is not an ordinary file, and for a file that is no
/// database.
Content contentOf(const std::string& path);

/// Creates a file of 0 bytes that only its owner can read and write; an ordinary file that has
/// appeared under that name is accepted. Throws Error.
void makeFile(const std::string& path);

/// Throws Error of kind Damaged for a database of another program.
void requireNotForeign(const std::string& path, Content content);

/// The name of the table in which a file keeps its catalogue.
inline constexpr const char* kCatalogueTable = "korvantes_schema";

}  // namespace korvantes::sqlite
