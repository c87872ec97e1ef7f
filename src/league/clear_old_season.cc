#include "league/clear_old_season.h"

#include <filesystem>
#include <string>
#include <vector>

#include "league/head_coach.h"
#include "store/session.h"

namespace courtmere {

namespace {

namespace fs = std::filesystem;

// The first of <folder>1, <folder>2, ... that doesn't exist, made.
fs::path MakeNumberedFolder(const fs::path& folder) {
  for (int n = 1;; ++n) {
    const fs::path candidate = folder / std::to_string(n);
    if (!fs::exists(candidate)) {
      fs::create_directories(candidate);
      return candidate;
    }
  }
}

bool IsText(const fs::directory_entry& entry) {
  return entry.is_regular_file() && entry.path().extension() == ".txt";
}

// With the option "Save Box Scores to Disk" on, last season's box scores
// move to <school><year>/<n>/ under the program folder; every other text
// file under log/ goes.
void FileBoxScores(Session& session, const std::string& school) {
  const Config config = LoadConfig(session.Db());
  fs::path saved;
  if (config.NumPlayers == 1) {
    saved = MakeNumberedFolder(
        session.folder.EnsureFolder("\\" + school + std::to_string(config.CurrYear) + "\\"));
  }
  const fs::path log = session.folder.Path("\\log\\");
  if (!fs::is_directory(log)) return;
  std::vector<fs::path> files;
  for (const fs::directory_entry& entry : fs::directory_iterator(log)) {
    if (IsText(entry)) files.push_back(entry.path());
  }
  for (const fs::path& file : files) {
    const std::string name = file.filename().string();
    if (!saved.empty() && name.rfind("Box", 0) == 0) {
      fs::rename(file, saved / name);
    } else {
      fs::remove(file);
    }
  }
}

}  // namespace

void ClearOldSeason(Session& session) {
  session.ui.ShowProgress("Clearing Old Season");
  Store& store = session.Db();
  Store::Transaction tx(store);
  store.Exec(
      "UPDATE Player SET Health = 'Good', TimeInjured = 0, InjuryUpdate = 0 WHERE TimeInjured > 0");
  store.Exec("DELETE FROM Messages WHERE Id > 0");
  store.Exec("DELETE FROM TeamRecruit WHERE Id > 0");
  store.Exec("UPDATE Cities SET Second = 0, Regional = 0, Final = 0 WHERE Id > 0");
  store.Exec("DELETE FROM AwardWinners WHERE Id >= 0");
  store.Exec("DELETE FROM WeekAward WHERE id >= 0");
  store.Exec("DELETE FROM RankHistory WHERE Id > 0");
  FileBoxScores(session, HumanSchool(store));
  store.Exec(
      "UPDATE Config SET CurrWeek = 1, CurrDay = 'Thursday', Stage = 'Season' WHERE IdConfig = 0");
  session.config.CurrWeek = 1;
  session.config.CurrDay = "Thursday";
  session.config.Stage = kStageSeason;
  tx.Commit();
}

}  // namespace courtmere
