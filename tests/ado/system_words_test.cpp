#include "outside/ado/system_words.h"

#include <cerrno>
#include <gtest/gtest.h>

namespace korvantes::ado {
namespace {

TEST(SystemWords, AreSpanishOrTellTheNumber) {
  EXPECT_EQ(systemWords(ENOSPC), "el disco está lleno");
  EXPECT_EQ(systemWords(EACCES), systemWords(EPERM));
  EXPECT_EQ(systemWords(std::make_error_code(std::errc::no_such_file_or_directory)), "no existe");
  EXPECT_EQ(systemWords(EPROTO), "error " + std::to_string(EPROTO) + " del sistema");
}

}  // namespace
}  // namespace korvantes::ado
