#include "league/start_season.h"

#include <string>

#include "cpu/computer_roster.h"
#include "league/class_ranks.h"
#include "league/clear_old_season.h"
#include "league/head_coach.h"
#include "league/poll.h"
#include "league/schedule_strength.h"
#include "league/season_letter.h"
#include "league/status.h"
#include "people/player_creation.h"
#include "people/recruit_pool.h"
#include "schedule/challenge_games.h"
#include "store/session.h"
#include "store/store_files.h"

namespace courtmere {

namespace {

constexpr int kNonConferenceGames = 4;
constexpr int kCoaches = 3;

// The two conditions the user must meet; false after telling him which fails.
bool ReadyToStart(Session& session, const std::string& school) {
  Store& store = session.Db();
  const int64_t games =
      store
          .ScalarInt("SELECT count(*) FROM NonConfSchedule WHERE HomeTeam = ? OR AwayTeam = ?",
                     school, school)
          .value_or(0);
  if (games < kNonConferenceGames) {
    session.ui.Message(
        "Please setup your full four game non-conference schedule before starting the season");
    return false;
  }
  if (store.ScalarInt("SELECT count(*) FROM Coach WHERE Team = ?", school).value_or(0) < kCoaches) {
    session.ui.Message(
        "Please setup your full three member coaching staff before starting the season");
    return false;
  }
  return true;
}

void CreateRecruitPool(Session& session, PlayerBatch& batch) {
  ShowStatus(session, "Creating Recruits");
  batch.recruitInterest = RecruitInterestFromStore();
  CreateRecruitClasses(session, batch);
  batch.Save(session);
  ShowStatus(session, "Ranking Recruits");
  RankRecruitPool(session);
  AddWalkOns(session, batch);
  batch.Save(session);
}

void OpenSeason(Session& session, const std::string& school) {
  Store& store = session.Db();
  ClearOldSeason(session);
  PlayerBatch batch = PlayerBatch::Begin(session);
  CreateRecruitPool(session, batch);
  ShowStatus(session, "Creating Schedule");
  BuildChallengeGames(session);
  store.Exec("INSERT INTO TeamRecruit (Team) VALUES (?)", school);
  ShowStatus(session, "Ranking Teams");
  UpdateScheduleStrength(session);
  UpdatePoll(session);
  RankRecruitClasses(session);
  // The compaction of "Loading Players" needs the store closed: it runs
  // once this season's transaction has committed.
  ShowStatus(session, "Loading Players");
  ShowStatus(session, "Assessing CPU rosters");
  SetCPURoster(session);
  for (const char* folder : {"\\SaveGame", "\\log", "\\reports"})
    session.folder.EnsureFolder(folder);
  ClearInbox(session, LoadConfig(store).CurrWeek);
  SeasonLetter(session);
}

}  // namespace

SeasonStart StartSeason(Session& session) {
  const std::string school = HumanSchool(session.Db());
  if (!ReadyToStart(session, school)) return SeasonStart::kRefused;
  if (!session.ui.Ask(
          "Once you start the season you will no longer have the ability to pick your "
          "non-conference schedule, change your staff, assign redshirts, cut players and switch "
          "player positions. Do you wish to proceed?")) {
    return SeasonStart::kDeclined;
  }
  {
    Store::Transaction tx(session.Db());
    OpenSeason(session, school);
    tx.Commit();
  }
  CloseStore(session, 0);
  CompactStore(session);
  OpenStore(session, 0);
  session.ui.HideProgress();
  return SeasonStart::kStarted;
}

}  // namespace courtmere
