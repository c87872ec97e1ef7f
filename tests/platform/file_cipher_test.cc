#include "platform/file_cipher.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <vector>

#include "support/temp_folder.h"

namespace courtmere {
namespace {

constexpr std::string_view kPass = "tidex47k29m3Q";

std::string ReadFile(const std::filesystem::path& path) {
  std::ifstream in(path, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

void WriteFile(const std::filesystem::path& path, const std::string& bytes) {
  std::ofstream(path, std::ios::binary) << bytes;
}

// A stand-in for a store: the SQLite header and enough bytes to span several
// cipher chunks, with a non-multiple tail.
std::string FakeStore(size_t size) {
  std::string bytes("SQLite format 3\0", 16);
  std::mt19937 gen(9);
  while (bytes.size() < size) bytes += static_cast<char>(gen() & 0xff);
  return bytes;
}

class FileCipherTest : public ::testing::Test {
 protected:
  testing::TempFolder dir_;
  std::filesystem::path file_ = dir_ / "mereball.dat";
};

TEST_F(FileCipherTest, RoundTripsByteForByteInPlaceOrToAnotherPath) {
  for (size_t size : {size_t{16}, size_t{65536}, size_t{200001}}) {
    const std::string plain = FakeStore(size);
    WriteFile(file_, plain);
    ASSERT_TRUE(CipherFile(file_, file_, kPass));
    EXPECT_TRUE(IsEnciphered(file_));
    EXPECT_NE(ReadFile(file_), plain);
    ASSERT_TRUE(CipherFile(file_, file_, kPass));
    EXPECT_EQ(ReadFile(file_), plain) << "size " << size;
  }
  // Written to another path, the source is left as it was.
  const std::string plain = FakeStore(5000);
  WriteFile(file_, plain);
  const auto out = dir_ / "save.CMR";
  ASSERT_TRUE(CipherFile(file_, out, kPass));
  EXPECT_EQ(ReadFile(file_), plain);
  ASSERT_TRUE(CipherFile(out, out, kPass));
  EXPECT_EQ(ReadFile(out), plain);
}

TEST_F(FileCipherTest, RefusesDamagedOrForeignFilesLeavingThemAsTheyWere) {
  WriteFile(file_, FakeStore(150000));
  ASSERT_TRUE(CipherFile(file_, file_, kPass));
  const std::string sealed = ReadFile(file_);

  auto refused = [&](const std::string& bytes, std::string_view pass) {
    WriteFile(file_, bytes);
    const bool answer = CipherFile(file_, file_, pass);
    EXPECT_EQ(ReadFile(file_), bytes);
    return !answer;
  };
  EXPECT_TRUE(refused(sealed.substr(0, sealed.size() - 1), kPass)) << "truncated by a byte";
  EXPECT_TRUE(refused(sealed.substr(0, 8 + 16 + 24 + 65536 + 17), kPass))
      << "truncated at a chunk boundary";
  for (size_t at : {size_t{3}, size_t{20}, size_t{60}, sealed.size() / 2, sealed.size() - 1}) {
    std::string flipped = sealed;
    flipped[at] = static_cast<char>(flipped[at] ^ 0x10);
    EXPECT_TRUE(refused(flipped, kPass)) << "flipped byte at " << at;
  }
  EXPECT_TRUE(refused(sealed, "another passphrase"));
  std::string random(4096, '\0');
  std::mt19937 gen(5);
  for (char& c : random) c = static_cast<char>(gen() & 0xff);
  EXPECT_TRUE(refused(random, kPass)) << "random bytes";
  EXPECT_TRUE(refused("", kPass)) << "empty file";
  EXPECT_FALSE(std::filesystem::exists(dir_ / "mereball.dat.cipher-tmp"));
}

// A failure says whose it is: the file's (refused, unreadable) or the
// disk's (the result can't be written).
TEST_F(FileCipherTest, TellsARefusedFileFromOneThatCantBeReadOrWritten) {
  EXPECT_FALSE(CipherFile(dir_ / "none.dat", dir_ / "none.dat", kPass));
  EXPECT_FALSE(std::filesystem::exists(dir_ / "none.dat"));
  EXPECT_EQ(TransformFile(dir_ / "none.dat", dir_ / "out", kPass).outcome,
            CipherOutcome::kCannotRead);
  std::ofstream(dir_ / "text.txt") << "not a store";
  EXPECT_EQ(TransformFile(dir_ / "text.txt", dir_ / "out", kPass).outcome, CipherOutcome::kRefused);
  WriteFile(file_, FakeStore(1000));
  const CipherResult unwritten = TransformFile(file_, dir_ / "missing" / "out.CMR", kPass);
  EXPECT_EQ(unwritten.outcome, CipherOutcome::kCannotWrite);
  EXPECT_EQ(unwritten.error, ENOENT);
  std::vector<unsigned char> plain;
  EXPECT_EQ(DecipherFile(file_, kPass, plain).outcome, CipherOutcome::kRefused)
      << "a plain store is no enciphered file";
}

}  // namespace
}  // namespace courtmere
