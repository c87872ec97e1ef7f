#include "platform/whole_file.h"

#include <gtest/gtest.h>

#include <fstream>
#include <sstream>
#include <system_error>

#include "support/temp_folder.h"

namespace courtmere {
namespace {

std::string Read(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  std::ostringstream text;
  text << in.rdbuf();
  return text.str();
}

TEST(WholeFileTest, NewShorterAndLongerContentsReplaceTheOldOneExactly) {
  testing::TempFolder folder;
  const auto file = folder / "Box1-1.txt";
  WriteWholeFile(file, "a long first box score\nwith two lines\n");
  EXPECT_EQ(Read(file), "a long first box score\nwith two lines\n");
  // Written over in place: nothing of the longer old text may remain.
  WriteWholeFile(file, "short\n");
  EXPECT_EQ(Read(file), "short\n");
  WriteWholeFile(file, "longer than the one before\n");
  EXPECT_EQ(Read(file), "longer than the one before\n");
  WriteWholeFile(file, "");
  EXPECT_EQ(Read(file), "");
}

TEST(WholeFileTest, AFileThatCannotBeWrittenThrowsAndNamesIt) {
  testing::TempFolder folder;
  const auto file = folder / "no such folder" / "Box1-1.txt";
  try {
    WriteWholeFile(file, "text");
    FAIL() << "no error";
  } catch (const std::system_error& error) {
    EXPECT_NE(std::string(error.what()).find("Box1-1.txt"), std::string::npos);
  }
}

}  // namespace
}  // namespace courtmere
