// Saving and loading a dynasty: what each flow writes, what it refuses, and
// that no failure costs the user his open dynasty or an earlier save.
#include "store/saved_games.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "people/grade_all_players.h"
#include "platform/file_cipher.h"
#include "small_dynasty.h"
#include "store/season_stats.h"
#include "store/store_files.h"

namespace courtmere {
namespace {

using testing::ReadBytes;
using testing::SmallDynasty;
using testing::WriteBytes;

class SavedGamesTest : public ::testing::Test {
 protected:
  Session& session() { return dynasty_.session(); }
  Store& store() { return dynasty_.store(); }
  ScriptedUi& ui() { return dynasty_.ui(); }
  std::filesystem::path SaveGame(const char* name) { return dynasty_.root() / "SaveGame" / name; }

  // Season figures in memory that differ from the store's.
  void PlayInMemory(int points) {
    LoadSeasonStats(session());
    PlayerSeasonLine& line = session().seasonStats.Team(1).Players[1];
    line.Points = points;
    line.Games = 3;
  }
  int64_t StoredPoints() {
    const int id = session().seasonStats.Team(1).Players[1].Id;
    return store().ScalarInt("SELECT Points FROM PlayerStats WHERE Id = ?", id).value_or(-1);
  }

  SmallDynasty dynasty_;
};

TEST_F(SavedGamesTest, ASaveLoadedTwiceOpensTheSameDynastyAndStaysEnciphered) {
  std::filesystem::create_directories(SaveGame("").parent_path());
  ASSERT_TRUE(SaveGameFile(session(), SaveGame("spring.CMR")));
  EXPECT_EQ(ui().Captions().back(), "Saving Game");
  EXPECT_EQ(ui().Messages().back(),
            "Your game has been saved to " + SaveGame("spring.CMR").string());
  const std::string saved = dynasty_.Dump();
  const std::string bytes = ReadBytes(SaveGame("spring.CMR"));
  EXPECT_TRUE(IsEnciphered(SaveGame("spring.CMR")));

  for (int load = 0; load < 2; ++load) {
    store().Exec("UPDATE HeadCoach SET Name = 'Someone Else'");
    ASSERT_EQ(LoadGameFile(session(), SaveGame("spring.CMR"), GradeAllPlayers),
              LoadOutcome::kLoaded);
    EXPECT_EQ(ui().Captions().back(), "Loading Game");
    EXPECT_EQ(dynasty_.Dump(), saved);
    EXPECT_EQ(ReadBytes(SaveGame("spring.CMR")), bytes);
  }
}

TEST_F(SavedGamesTest, TheEndingIsReadInAnyCaseAndAnyOtherIsIgnored) {
  std::filesystem::create_directories(SaveGame("").parent_path());
  ASSERT_TRUE(SaveGameFile(session(), SaveGame("lower.cmr")));
  EXPECT_EQ(LoadGameFile(session(), SaveGame("lower.cmr"), GradeAllPlayers), LoadOutcome::kLoaded);

  std::filesystem::copy_file(SaveGame("lower.cmr"), SaveGame("lower.sav"));
  const size_t shown = ui().Messages().size();
  EXPECT_EQ(LoadGameFile(session(), SaveGame("lower.sav"), GradeAllPlayers), LoadOutcome::kIgnored);
  EXPECT_EQ(ui().Messages().size(), shown);

  ui().QueueFile(SaveGame("lower.sav"));
  EXPECT_FALSE(ChooseGameToLoad(session()));
  ui().QueueFile(SaveGame("lower.cmr"));
  EXPECT_EQ(ChooseGameToLoad(session()), SaveGame("lower.cmr"));
  EXPECT_EQ(ui().DialogTitles().back(), "Open");
}

TEST_F(SavedGamesTest, TheSaveDialogMakesTheFolderAndAddsTheEnding) {
  ui().QueueFile(SaveGame("autumn"));
  EXPECT_EQ(ChooseSaveName(session()), SaveGame("autumn.CMR"));
  EXPECT_EQ(ui().DialogTitles().back(), "Save");
  EXPECT_TRUE(std::filesystem::is_directory(dynasty_.root() / "SaveGame"));
  EXPECT_FALSE(ChooseSaveName(session())) << "a cancelled dialog";
}

TEST_F(SavedGamesTest, AFailedWriteLeavesTheEarlierSaveOfThatName) {
  const std::filesystem::path save = dynasty_.root() / "spring.CMR";
  ASSERT_TRUE(SaveGameFile(session(), save));
  const std::string earlier = ReadBytes(save);
  store().Exec("UPDATE HeadCoach SET Name = 'Later Coach'");
  // The cipher writes beside the save; a directory there stands for a full
  // disk or a kill half-way.
  std::filesystem::create_directory(dynasty_.root() / "spring.CMR.cipher-tmp");
  EXPECT_FALSE(SaveGameFile(session(), save));
  EXPECT_TRUE(ui().Messages().back().ends_with("The game was not saved."))
      << ui().Messages().back();
  EXPECT_EQ(ReadBytes(save), earlier);
  ASSERT_TRUE(session().StoreOpen());
  EXPECT_EQ(*store().ScalarText("SELECT Name FROM HeadCoach"), "Later Coach");
  EXPECT_TRUE(UnsavedChanges(session()));

  ASSERT_EQ(LoadGameFile(session(), save, GradeAllPlayers), LoadOutcome::kLoaded);
  EXPECT_EQ(*store().ScalarText("SELECT Name FROM HeadCoach"), "Pat O'Neil");
}

// A candidate is checked without writing a byte (so a full or read-only
// folder can't make a good save look invalid), and a file far too large to
// be a save is refused from its size, before it is read.
TEST_F(SavedGamesTest, CheckingACandidateWritesNothingAndAHugeFileIsRefusedUnread) {
  const std::filesystem::path save = dynasty_.root() / "spring.CMR";
  ASSERT_TRUE(SaveGameFile(session(), save));
  auto files = [&] {
    std::vector<std::string> names;
    for (const auto& e : std::filesystem::recursive_directory_iterator(dynasty_.root())) {
      names.push_back(e.path().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  };
  const auto before = files();
  EXPECT_EQ(CheckSaveFile(session(), save), 1);
  EXPECT_EQ(files(), before);

  const std::string dynasty = dynasty_.Dump();
  const std::filesystem::path huge = dynasty_.root() / "huge.CMR";
  WriteBytes(huge, ReadBytes(save).substr(0, 4096));
  std::filesystem::resize_file(huge, uintmax_t{2} << 30);  // sparse: no disk used
  EXPECT_EQ(CheckSaveFile(session(), huge), 0);
  EXPECT_EQ(ui().Messages().back(), kNotASaveGame);
  EXPECT_EQ(LoadGameFile(session(), huge, GradeAllPlayers), LoadOutcome::kRefused);
  EXPECT_EQ(dynasty_.Dump(), dynasty);
}

TEST_F(SavedGamesTest, SeasonFiguresAreWrittenOnlyDuringTheSeason) {
  const std::filesystem::path save = dynasty_.root() / "stats.CMR";
  PlayInMemory(41);
  ASSERT_EQ(session().config.Stage, "Post Training");
  ASSERT_TRUE(SaveGameFile(session(), save));
  EXPECT_EQ(StoredPoints(), 0) << "saving in the offseason writes no statistics";

  for (const char* stage : {"Season", "Season Over"}) {
    PlayInMemory(stage == std::string("Season") ? 52 : 63);
    session().config.Stage = stage;
    ASSERT_TRUE(SaveGameFile(session(), save));
    EXPECT_EQ(StoredPoints(), stage == std::string("Season") ? 52 : 63);
  }
  // A load brings the figures back to memory.
  session().seasonStats.Clear();
  ASSERT_EQ(LoadGameFile(session(), save, GradeAllPlayers), LoadOutcome::kLoaded);
  EXPECT_EQ(session().seasonStats.Team(1).Players[1].Points, 63);
}

TEST_F(SavedGamesTest, TheAutosaveFollowsTheOption) {
  const std::filesystem::path autosave = dynasty_.root() / "SaveGame" / "AutoSave.CMR";
  EXPECT_FALSE(Autosave(session()));
  EXPECT_FALSE(std::filesystem::exists(autosave));

  store().Exec("UPDATE Config SET Autosave = 1 WHERE IdConfig = 0");
  session().config.Autosave = 1;
  ASSERT_TRUE(Autosave(session()));
  const std::string first = ReadBytes(autosave);
  store().Exec("UPDATE HeadCoach SET Name = 'Year Two'");
  ASSERT_TRUE(Autosave(session()));
  EXPECT_NE(ReadBytes(autosave), first) << "the last autosave is written over";
  EXPECT_TRUE(ui().Messages().empty()) << "the autosave says nothing";

  store().Exec("UPDATE HeadCoach SET Name = 'Year Three'");
  ASSERT_EQ(LoadGameFile(session(), autosave, GradeAllPlayers), LoadOutcome::kLoaded);
  EXPECT_EQ(*store().ScalarText("SELECT Name FROM HeadCoach"), "Year Two");
}

TEST_F(SavedGamesTest, ASaveWithoutADynastyCannotBeRead) {
  const std::filesystem::path plain = dynasty_.root() / "plain.dat";
  const std::filesystem::path save = dynasty_.root() / "empty.CMR";
  std::filesystem::copy_file(session().folder.Store(), plain);
  {
    Store copy(plain);
    copy.Exec("DELETE FROM Config");
  }
  ASSERT_TRUE(CipherFile(plain, save, kSavePassphrase));
  const std::string before = dynasty_.Dump();
  EXPECT_FALSE(LoadSave(session(), save));
  EXPECT_EQ(ui().Messages().back(),
            "Cannot Read the Save Game File. Please try another one or start a New Game.");
  EXPECT_EQ(dynasty_.Dump(), before);
  EXPECT_EQ(CheckSaveFile(session(), save), 0);
  EXPECT_EQ(ui().Messages().back(), "This is not a valid SaveGame File");
}

TEST_F(SavedGamesTest, ChangesCountFromTheLastLoadOrSave) {
  EXPECT_TRUE(UnsavedChanges(session())) << "a dynasty never saved";
  const std::filesystem::path save = dynasty_.root() / "changes.CMR";
  ASSERT_TRUE(SaveGameFile(session(), save));
  EXPECT_FALSE(UnsavedChanges(session()));
  store().Exec("UPDATE Team SET Prestige = 61 WHERE SchoolName = ?", SmallDynasty::kHuman);
  EXPECT_TRUE(UnsavedChanges(session()));
  ASSERT_EQ(LoadGameFile(session(), save, GradeAllPlayers), LoadOutcome::kLoaded);
  EXPECT_FALSE(UnsavedChanges(session()));
  CloseStore(session(), 0);
  OpenStore(session(), 0);
  EXPECT_TRUE(UnsavedChanges(session())) << "a store opened anew is not known to be saved";

  store().Exec("DELETE FROM HeadCoach");
  MenuGate(session());
  EXPECT_FALSE(UnsavedChanges(session())) << "no dynasty, nothing to lose";
}

}  // namespace
}  // namespace courtmere
