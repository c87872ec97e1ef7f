#include "season/exhibition_series.h"

#include <algorithm>

#include "cpu/computer_roster.h"
#include "engine/post_game.h"
#include "engine/run_engine.h"
#include "season/heal_injuries.h"
#include "store/config.h"
#include "store/session.h"

namespace courtmere {

namespace {

// The season figures of the two schools' players, for the recording.
PlayerStatsStore SeasonStore(Store& store, const ExhibitionSeries& series) {
  PlayerStatsStore stats;
  int index = 1;
  for (const std::string& school : {series.home, series.away}) {
    TeamSeasonLines& team = stats.Team(index++);
    team.SchoolName = school;
    int slot = 1;
    for (const char* table : {"Player", "ScrubPlayer"}) {
      const std::string sql =
          std::string("SELECT Id, PlayerPosition FROM ") + table + " WHERE Team = ? ORDER BY Id";
      for (Rows rows = store.Query(sql, school); rows.Next() && slot <= TeamSeasonLines::kSlots;) {
        team.Players[slot].Id = rows.Int(0);
        team.Players[slot].PlayerPosition = rows.Int(1);
        ++slot;
      }
    }
  }
  return stats;
}

// Everything one series works with.
struct SeriesRun {
  Session& session;
  const ExhibitionSeries& series;
  const std::function<void(const SeriesGame&)>& afterGame;
  PlayerStatsStore stats;
  DayResults day;
  Game game;
};

GameRequest RequestFor(const SeriesRun& run, int number) {
  GameRequest request;
  request.HomeTeam = run.series.home;
  request.AwayTeam = run.series.away;
  request.GameType = "Exhibition";
  request.BatchIndex = (number - 1) % kSeriesGamesPerBatch + 1;
  request.GameNo = run.session.config.MaxGameNo + 1;
  return request;
}

// Plays and records game `number`, with the lineup pass before it and the
// week's healing after it; false when it could not be played.
bool PlaySeriesGame(SeriesRun& run, int number) {
  Session& session = run.session;
  // The day's lineup pass: a computer team whose chart an injury cleared
  // gets a new one from its healthy men.
  SetCPURoster(session);
  const GameRequest request = RequestFor(run, number);
  SeriesGame played{number, &run.game, "", run.series.log ? "log" : "none"};
  // When the game cannot be played the engine has said why.
  if (RunEngine(run.game, run.day, request, played.boxFile, played.logFile) != 1) return false;
  RecordPlayerStats(run.day, run.stats, session.config, request.BatchIndex);
  RecordTeamStats(session.Db(), run.day, request.BatchIndex);
  session.config.MaxGameNo = request.GameNo;
  SaveConfig(session.Db(), session.config);
  if (number % kSeriesGamesPerWeek == 0) HealInjuries(session);
  run.afterGame(played);
  return true;
}

}  // namespace

int PlayExhibitionSeries(Session& session, const ExhibitionSeries& series,
                         const std::function<void(const SeriesGame&)>& afterGame) {
  Store& store = session.Db();
  session.config = LoadConfig(store);
  SeriesRun run{session,      series,       afterGame, SeasonStore(store, series),
                DayResults(), Game(session)};
  int played = 0;
  bool stopped = false;
  while (played < series.games && !stopped) {
    Store::Transaction tx(store);
    const int batchEnd = std::min(series.games, played + kSeriesGamesPerBatch);
    while (played < batchEnd && !stopped) {
      stopped = !PlaySeriesGame(run, played + 1);
      if (!stopped) ++played;
    }
    // A stopped batch keeps its games, and the chart repairs the engine
    // tried.
    tx.Commit();
  }
  return played;
}

}  // namespace courtmere
