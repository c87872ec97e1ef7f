#include "platform/program_folder.h"

#include <gtest/gtest.h>

#include <cstdlib>

#include "support/temp_folder.h"

namespace courtmere {
namespace {

TEST(ProgramFolderTest, MapsBackslashNamesUnderTheRoot) {
  testing::TempFolder dir;
  ProgramFolder folder(dir.Path() / "home");
  EXPECT_TRUE(std::filesystem::is_directory(dir.Path() / "home"));
  EXPECT_EQ(folder.Path("\\mereball.dat"), dir.Path() / "home" / "mereball.dat");
  EXPECT_EQ(folder.Path("\\SaveGame\\AutoSave.CMR"),
            dir.Path() / "home" / "SaveGame" / "AutoSave.CMR");
  EXPECT_EQ(folder.Path("\\log\\"), dir.Path() / "home" / "log");
  EXPECT_EQ(folder.Store(), dir.Path() / "home" / "mereball.dat");
  EXPECT_EQ(folder.Backup(), dir.Path() / "home" / "mereball.bak");
  EXPECT_TRUE(std::filesystem::is_directory(folder.EnsureFolder("\\reports\\")));
}

TEST(ProgramFolderTest, DefaultRootFollowsXdgDataHome) {
  const char* old = std::getenv("XDG_DATA_HOME");
  const std::string saved = old != nullptr ? old : "";
  setenv("XDG_DATA_HOME", "/tmp/xdg-here", 1);
  EXPECT_EQ(ProgramFolder::DefaultRoot(), std::filesystem::path("/tmp/xdg-here/courtmere"));
  unsetenv("XDG_DATA_HOME");
  EXPECT_EQ(ProgramFolder::DefaultRoot().filename(), "courtmere");
  EXPECT_NE(ProgramFolder::DefaultRoot().string().find(".local/share"), std::string::npos);
  if (old != nullptr) setenv("XDG_DATA_HOME", saved.c_str(), 1);
}

}  // namespace
}  // namespace courtmere
