#include "season/game_batch.h"

#include <algorithm>
#include <vector>

#include "engine/box_score.h"
#include "engine/post_game.h"
#include "engine/run_engine.h"
#include "league/seeded_name.h"
#include "season/schedule_tables.h"
#include "season/season_observer.h"
#include "season/season_run.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr size_t kMostPlayedConferences = 10;

struct GameFiles {
  bool box = false;
  bool log = false;
};

GameFiles FilesFor(const Session& session, bool listed) {
  return {session.config.NumPlayers == 1 || listed, listed && session.config.PlayByPlay == 1};
}

struct GameOutcome {
  int homeScore = 0;
  int awayScore = 0;
  std::string boxFile;
  std::string logFile;
};

// Plays the game and writes its box score; false when it was not played.
bool PlayGame(SeasonRun& run, GameRequest request, GameFiles files, GameOutcome& out) {
  std::string box;
  std::string log = files.log ? "log" : "none";
  // The engine writes files only for a game with a log, or a coached one
  // (its screen shows the box score of the moment from the file); the box
  // score of every game that wants one is written below.
  request.WriteFiles = files.log || request.Live == 1 || request.CoachFinish == 1;
  if (run.runGame(run.game, run.day, request, box, log) != 1) return false;
  if (files.box) {
    const ProgramFolder& folder = run.session.folder;
    folder.EnsureFolder("\\log\\");
    run.game.BoxFileName = GameFilePath(folder, "Box", request.GameNo, request.BatchIndex);
    WriteBoxScore(run.game);
    box = run.game.BoxFileName.string();
  } else {
    box.clear();
  }
  out = {run.game.Home().Score, run.game.Away().Score, box, log};
  return true;
}

// The row's new cells besides its kept ones.
struct RowResult {
  int homeScore = 0;
  int awayScore = 0;
  std::array<Value, 4> leaders{nullptr, nullptr, nullptr, nullptr};
  std::string boxFile;
  std::string logFile;
};

// The row is read, deleted and added anew with its result, as the game's
// commit: a played row thus moves behind the unplayed ones.
void RewriteRow(Store& store, const std::string& table, int gameNo, const RowResult& r) {
  store.Exec("INSERT INTO " + table +
                 " (GameNo, Week, GameDay, HomeTeam, AwayTeam, HomeConf, AwayConf, GameType, "
                 "HomeScore, AwayScore, HomePoints, HomeRebounds, AwayPoints, AwayRebounds, "
                 "GameLog, BoxScore) SELECT GameNo, Week, GameDay, HomeTeam, AwayTeam, HomeConf, "
                 "AwayConf, GameType, ?, ?, ?, ?, ?, ?, ?, ? FROM " +
                 table + " WHERE GameNo = ? LIMIT 1",
             r.homeScore, r.awayScore, r.leaders[0], r.leaders[1], r.leaders[2], r.leaders[3],
             r.logFile, r.boxFile, gameNo);
  store.Exec("DELETE FROM " + table + " WHERE GameNo = ? AND rowid <> ?", gameNo,
             store.Db().getLastInsertRowid());
}

// A background team's record counts its games of the non-conference table.
void CountBackgroundResult(Store& store, const std::string& school, bool won) {
  store.Exec(won ? "UPDATE ScrubTeam SET Wins = Wins + 1 WHERE SchoolName = ?"
                 : "UPDATE ScrubTeam SET Losses = Losses + 1 WHERE SchoolName = ?",
             school);
}

std::string ConferenceOf(Store& store, const std::string& school) {
  return store.ScalarText("SELECT Conference FROM Team WHERE SchoolName = ?", school).value_or("");
}

void MarkPlayed(SeasonRun& run, const std::string& conference) {
  auto& played = run.played;
  if (conference.empty() || played.size() >= kMostPlayedConferences) return;
  if (std::find(played.begin(), played.end(), conference) == played.end()) {
    played.push_back(conference);
  }
}

// Game types whose rows stand in a conference table.
bool InConferenceTable(const std::string& gameType) {
  for (const char* type :
       {"Tournament", "Conference", "East", "West", "South", "Midwest", "FinalFour", "Finals"}) {
    if (gameType == type) return true;
  }
  return gameType.starts_with("ACT");
}

void RecordBatch(SeasonRun& run, int games) {
  Session& session = run.session;
  for (int index = 1; index <= games; ++index) {
    RecordPlayerStats(run.day, session.seasonStats, session.config, index);
    RecordTeamStats(session.Db(), run.day, index);
  }
}

void ShowOnTicker(SeasonRun& run, const std::string& home, const std::string& away,
                  const GameOutcome& g) {
  if (run.observer == nullptr) return;
  Session& session = run.session;
  const bool homeWon = g.homeScore > g.awayScore;
  run.observer->GameResult(
      RankedName(session, homeWon ? home : away), homeWon ? g.homeScore : g.awayScore,
      RankedName(session, homeWon ? away : home), homeWon ? g.awayScore : g.homeScore);
  if (session.config.SimSpeed > 0) run.observer->Wait(session.config.SimSpeed / 10.0);
}

// One listed game's request: the first row, the user's game, live when he
// coaches it or its finish.
GameRequest ListedRequest(const SeasonRun& run, const DayRow& row, int index) {
  const SeededName home = SeededName::Parse(row.HomeTeam);
  const SeededName away = SeededName::Parse(row.AwayTeam);
  GameRequest request;
  request.HomeTeam = home.school;
  request.AwayTeam = away.school;
  request.GameType = row.GameType;
  request.BatchIndex = index;
  request.GameNo = row.GameNo;
  // Design decision: only the user's own game can run live; the box is
  // hidden on a day he does not play.
  const std::string& user = run.session.humanSchool;
  const bool users =
      index == 1 && run.screen.userPlays && (home.school == user || away.school == user);
  request.Live = users && run.screen.coachGame ? 1 : 0;
  request.CoachFinish = users && !run.screen.coachGame && run.screen.coachFinish ? 1 : 0;
  request.KeepLeaders = 1;
  if (run.session.config.CurrWeek == 17 && home.seed > 0 && away.seed > 0) {
    request.CourtEdge = SeedCourtEdge(home.seed, away.seed);
  }
  return request;
}

void StoreListedResult(SeasonRun& run, DayRow& row, const GameRequest& request,
                       const GameOutcome& g) {
  Session& session = run.session;
  Store& store = session.Db();
  const GameLeaders& l = run.game.Leaders;
  row.HomeScore = g.homeScore;
  row.AwayScore = g.awayScore;
  row.HomePoints = LeaderCell(l.PointsName[0], l.Points[0]);
  row.HomeRebounds = LeaderCell(l.ReboundsName[0], l.Rebounds[0]);
  row.AwayPoints = LeaderCell(l.PointsName[1], l.Points[1]);
  row.AwayRebounds = LeaderCell(l.ReboundsName[1], l.Rebounds[1]);
  if (InConferenceTable(row.GameType)) {
    MarkPlayed(run, session.config.CurrWeek < 17 ? ConferenceOf(store, request.HomeTeam)
                                                 : session.humanConference);
  } else {
    const bool homeWon = g.homeScore > g.awayScore;
    CountBackgroundResult(store, request.HomeTeam, homeWon);
    CountBackgroundResult(store, request.AwayTeam, !homeWon);
  }
  RowResult result{g.homeScore,
                   g.awayScore,
                   {row.HomePoints, row.HomeRebounds, row.AwayPoints, row.AwayRebounds},
                   g.boxFile,
                   g.logFile};
  RewriteRow(store, row.Table, row.GameNo, result);
}

struct BatchRow {
  std::string home;
  std::string away;
  int gameNo = 0;
  std::string gameType;
};

std::vector<BatchRow> UnplayedRows(Store& store, const std::string& table, const std::string& day,
                                   int week) {
  std::vector<BatchRow> rows;
  for (Rows r = store.Query("SELECT HomeTeam, AwayTeam, GameNo, GameType FROM " + table +
                                " WHERE HomeScore = 0 AND GameDay = ? AND Week = ? ORDER BY "
                                "GameNo ASC",
                            day, week);
       r.Next();) {
    rows.push_back({r.Text(0), r.Text(1), r.Int(2), r.Text(3)});
  }
  return rows;
}

void StoreBatchResult(SeasonRun& run, const std::string& table, const BatchRow& row,
                      const GameOutcome& g) {
  Store& store = run.session.Db();
  const bool homeWon = g.homeScore > g.awayScore;
  const bool conferenceGame = row.gameType == "Tournament" || row.gameType == "Conference";
  if (conferenceGame) {
    MarkPlayed(run, ConferenceOf(store, row.home));
  } else {
    CountBackgroundResult(store, row.home, homeWon);
  }
  RowResult result;
  result.homeScore = g.homeScore;
  result.awayScore = g.awayScore;
  result.boxFile = g.boxFile;
  result.logFile = g.logFile;
  RewriteRow(store, table, row.gameNo, result);
  if (!conferenceGame) CountBackgroundResult(store, row.away, !homeWon);
}

}  // namespace

int SeedCourtEdge(int homeSeed, int awaySeed) {
  const int d = awaySeed - homeSeed;
  if (d == 15) return 2;
  if (d == 9 || d == 7) return -2;
  return 0;
}

std::string LeaderCell(const std::string& abbrName, int value) {
  return (abbrName.size() > 3 ? abbrName.substr(3) : std::string()) + "-" + std::to_string(value);
}

bool SimListedGames(SeasonRun& run) {
  Session& session = run.session;
  int index = 0;
  for (DayRow& row : run.screen.rows) {
    if (row.Played()) continue;
    const GameRequest request = ListedRequest(run, row, ++index);
    GameOutcome outcome;
    if (!PlayGame(run, request, FilesFor(session, true), outcome)) {
      RecordBatch(run, index - 1);
      return false;
    }
    StoreListedResult(run, row, request, outcome);
  }
  if (index == 0) return true;
  session.ui.ShowProgress("Updating Player Stats");
  RecordBatch(run, index);
  session.ui.HideProgress();
  return true;
}

bool SimConferenceGames(SeasonRun& run, const std::string& day, const std::string& conference,
                        int week) {
  Session& session = run.session;
  const std::string table =
      conference == "NonConference" ? "NonConfSchedule" : ScheduleTableOf(session.Db(), conference);
  if (table.empty()) return true;
  const std::vector<BatchRow> rows = UnplayedRows(session.Db(), table, day, week);
  if (rows.empty()) return true;
  session.ui.ShowProgress("Simming Week " + std::to_string(week) + " Games");
  int index = 0;
  bool played = true;
  for (size_t i = 0; i < rows.size() && played; ++i) {
    const BatchRow& row = rows[i];
    GameRequest request;
    request.HomeTeam = row.home;
    request.AwayTeam = row.away;
    request.GameType = row.gameType;
    request.BatchIndex = ++index;
    request.GameNo = row.gameNo;
    GameOutcome outcome;
    played = PlayGame(run, request, FilesFor(session, false), outcome);
    if (!played) {
      --index;
      break;
    }
    ShowOnTicker(run, row.home, row.away, outcome);
    StoreBatchResult(run, table, row, outcome);
    session.ui.SetProgress(static_cast<int>((i + 1) * 100 / rows.size()));
    // The day's result tables hold 150 games: a longer batch records them
    // and starts again at the first place.
    if (index == kBatchGames) {
      RecordBatch(run, index);
      index = 0;
    }
  }
  session.ui.HideProgress();
  // Design decision: the games played before one that could not be are
  // recorded too, so no stored score lacks its statistics.
  RecordBatch(run, index);
  return played;
}

}  // namespace courtmere
