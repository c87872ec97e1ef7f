#include "season/exhibition_series.h"

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

GameRequest RequestFor(const Session& session, const ExhibitionSeries& series, int number) {
  GameRequest request;
  request.HomeTeam = series.home;
  request.AwayTeam = series.away;
  request.GameType = "Exhibition";
  request.BatchIndex = (number - 1) % 150 + 1;
  request.GameNo = session.config.MaxGameNo + 1;
  return request;
}

}  // namespace

int PlayExhibitionSeries(Session& session, const ExhibitionSeries& series,
                         const std::function<void(const SeriesGame&)>& afterGame) {
  Store& store = session.Db();
  session.config = LoadConfig(store);
  PlayerStatsStore stats = SeasonStore(store, series);
  DayResults day;
  Game game(session);
  for (int number = 1; number <= series.games; ++number) {
    Store::Transaction tx(store);
    // The day's lineup pass: a computer team whose chart an injury cleared
    // gets a new one from its healthy men.
    SetCPURoster(session);
    const GameRequest request = RequestFor(session, series, number);
    SeriesGame played{number, &game, "", series.log ? "log" : "none"};
    if (RunEngine(game, day, request, played.boxFile, played.logFile) != 1) {
      // The engine has said why; the repairs it tried stay.
      tx.Commit();
      return number - 1;
    }
    RecordPlayerStats(day, stats, session.config, request.BatchIndex);
    RecordTeamStats(store, day, request.BatchIndex);
    session.config.MaxGameNo = request.GameNo;
    SaveConfig(store, session.config);
    if (number % kSeriesGamesPerWeek == 0) HealInjuries(session);
    tx.Commit();
    afterGame(played);
  }
  return series.games;
}

}  // namespace courtmere
