#pragma once

#include <string>
#include <string_view>

#include "runtime/ado/error.h"

namespace korvantes::sqlite {

/// A failure of SQLite as shown to the user: our Spanish sentence and its kind. SQLite's own words
/// appear only if there is no such sentence.
/// @param code the extended result code, which becomes the error's number
/// @param words sqlite3_errmsg
/// @param systemError errno of the failed system call, 0 if there was none
ado::Error describe(int code, const std::string& words, int systemError, std::string_view subject);

/// The sentence for a database file that is no longer where it was opened.
ado::Error fileReplaced(const std::string& path, std::string_view subject);

}  // namespace korvantes::sqlite
