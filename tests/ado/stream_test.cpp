#include "runtime/ado/stream.h"

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/support/failure.h"
#include "tests/support/temporary_folder.h"

namespace korvantes::ado {
namespace {

namespace fs = std::filesystem;

class StreamTest : public testing::Test {
 protected:
  std::string at(const char* name) const { return folder_.file(name); }
  long files() const {
    return std::distance(fs::directory_iterator(at("")), fs::directory_iterator());
  }
  support::TemporaryFolder folder_;
};

Bytes pattern(std::size_t size) {
  Bytes bytes(size);
  for (std::size_t i = 0; i < size; ++i) bytes[i] = static_cast<std::byte>(i * 7 % 251);
  return bytes;
}

TEST_F(StreamTest, WritesAndReadsBackAllBytesInAFileOfItsOwn) {
  for (const std::size_t size : {std::size_t{0}, std::size_t{3}, std::size_t{200'000}}) {
    Stream out;
    out.Write(pattern(size / 2));
    out.Write(pattern(size - size / 2));
    out.SaveToFile(at("foto"));
    Stream in;
    in.Write(pattern(5));  // replaced by the file
    in.LoadFromFile(at("foto"));
    EXPECT_EQ(in.Read(), out.Read());
  }
  // A link is replaced and not followed, and the file is its owner's.
  std::ofstream(at("ajeno")) << "intacto";
  fs::remove(at("foto"));
  fs::create_symlink("ajeno", at("foto"));
  Stream().SaveToFile(at("foto"));
  EXPECT_EQ(fs::file_size(at("ajeno")), 7U);
  struct stat state {};
  ASSERT_EQ(::lstat(at("foto").c_str(), &state), 0);
  EXPECT_TRUE(S_ISREG(state.st_mode));
  EXPECT_EQ(state.st_mode & 0777U, 0600U);
  EXPECT_EQ(files(), 2);
}

TEST_F(StreamTest, FailuresHaveTheSystemsWordsAndLeaveNothingBehind) {
  Stream stream;
  stream.Write(pattern(4));
  fs::create_directory(at("carpeta"));
  for (const char* bad : {"carpeta", "no/hay"})
    EXPECT_THROW(stream.SaveToFile(at(bad)), Error) << bad;
  EXPECT_EQ(files(), 1);
  ASSERT_EQ(::mkfifo(at("tubo").c_str(), 0600), 0);
  std::ofstream(at("grande")).put('x');
  fs::resize_file(at("grande"), Stream::kMaxBytes + 1);
  for (const char* bad : {"tubo", "carpeta", "grande"})
    EXPECT_THROW(stream.LoadFromFile(at(bad)), Error) << bad;
  EXPECT_NE(support::failureOf([&] { stream.LoadFromFile(at("nada")); }).find(at("nada")),
            std::string::npos);
  EXPECT_EQ(stream.Read(), pattern(4));
}

}  // namespace
}  // namespace korvantes::ado
