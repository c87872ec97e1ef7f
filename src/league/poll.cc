#include "league/poll.h"

#include <string>
#include <vector>

#include "league/selection_sort.h"
#include "store/session.h"

namespace courtmere {

namespace {

// One school of a poll run.
struct PollEntry {
  double Points = 0;
  std::string SchoolName;
  int Previous = 0;  // its TeamRanking before this run; 0 for a school new to Ranking
};

// From week 5 on, the poll weighs a record and the rating index's schedule
// strength; before that, the season's ScheduleStrength.
constexpr int kLastEarlyWeek = 4;
// Background records drift from week 3 on.
constexpr int kLastWeekWithoutDrift = 2;

double WinFraction(int wins, int losses) {
  return static_cast<double>(wins) / (wins + losses);
}

double SchedStrength(Store& store, const std::string& school) {
  return store.ScalarDouble("SELECT SchedStrength FROM CRIRank WHERE SchoolName = ?", school)
      .value_or(0.0);
}

// The score of a school with games, from week 5 on; first-division and
// background teams alike.
double LatePoints(double winPct, double prestige, int rating, double schedStrength) {
  return winPct * 140 + (prestige + rating / 6.75) / 2 + schedStrength * 110;
}

double TeamPoints(Store& store, const Rows& r, int week) {
  const double prestige = r.Double(1);
  const int rating = r.Int(2);
  const double scheduleStrength = r.Double(4);
  const int wins = r.Int(5);
  const int losses = r.Int(6);
  if (wins + losses == 0) return prestige + rating / 7.0 + scheduleStrength / 7.0;
  const double winPct = WinFraction(wins, losses);
  if (week > kLastEarlyWeek) {
    return LatePoints(winPct, prestige, rating, SchedStrength(store, r.Text(0)));
  }
  return winPct * 70 + (prestige + rating / 6.75) / 1.5 + scheduleStrength / 10;
}

void ReadTeams(Store& store, int week, std::vector<PollEntry>& entries) {
  for (Rows r = store.Query(
           "SELECT Team.SchoolName, Team.Prestige, Team.TeamRating, Ranking.TeamRanking, "
           "Team.ScheduleStrength, TeamStats.TotalWins, TeamStats.TotalLosses FROM Team "
           "JOIN Ranking ON Team.SchoolName = Ranking.SchoolName "
           "JOIN TeamStats ON Team.SchoolName = TeamStats.SchoolName "
           "ORDER BY Team.Prestige DESC, Team.rowid");
       r.Next();) {
    entries.push_back({TeamPoints(store, r, week), r.Text(0), r.Int(3)});
  }
}

// A background team with games has no score up to week 4: it sinks to the
// bottom of those polls.
double BackgroundPoints(Store& store, const Rows& r, int week) {
  const double prestige = r.Double(1);
  const int rating = r.Int(2);
  const int wins = r.Int(4);
  const int losses = r.Int(5);
  if (wins + losses == 0) return prestige + rating / 6.75 + 60;
  if (week <= kLastEarlyWeek) return 0;
  return LatePoints(WinFraction(wins, losses), prestige, rating, SchedStrength(store, r.Text(0)));
}

// Two unseen results, written at once.
void DriftRecord(Session& session, const std::string& school, int oldRank, int wins, int losses) {
  const DriftThresholds t = BackgroundDriftThresholds(oldRank);
  for (int threshold : {t.first, t.second}) {
    if (session.rng.Roll(100) > threshold) {
      ++wins;
    } else {
      ++losses;
    }
  }
  session.Db().Exec("UPDATE ScrubTeam SET Losses = ?, Wins = ? WHERE SchoolName = ?", losses, wins,
                    school);
}

// Design decision: a background team's score rests on the record it brings
// to this poll; the two results of this poll's drift count from the next one.
void ReadBackgroundTeams(Session& session, int week, std::vector<PollEntry>& entries) {
  Store& store = session.Db();
  session.rng.Reseed();
  for (Rows r =
           store.Query("SELECT ScrubTeam.SchoolName, ScrubTeam.Prestige, ScrubTeam.TeamRating, "
                       "Ranking.TeamRanking, ScrubTeam.Wins, ScrubTeam.Losses FROM ScrubTeam "
                       "JOIN Ranking ON ScrubTeam.SchoolName = Ranking.SchoolName "
                       "ORDER BY ScrubTeam.Prestige DESC, ScrubTeam.rowid");
       r.Next();) {
    PollEntry entry{BackgroundPoints(store, r, week), r.Text(0), r.Int(3)};
    if (week > kLastWeekWithoutDrift) {
      DriftRecord(session, entry.SchoolName, entry.Previous, r.Int(4), r.Int(5));
    }
    entries.push_back(std::move(entry));
  }
}

void WriteRanking(Store& store, const std::vector<PollEntry>& entries) {
  store.Exec("DELETE FROM Ranking WHERE SchoolName IS NOT NULL");
  int position = 0;
  for (const PollEntry& e : entries) {
    ++position;
    const int previous = e.Previous == 0 ? position : e.Previous;
    store.Exec(
        "INSERT INTO Ranking (TeamRanking, Previous, TeamPoints, SchoolName) VALUES (?, ?, ?, ?)",
        position, previous, e.Points, e.SchoolName);
  }
}

}  // namespace

DriftThresholds BackgroundDriftThresholds(int oldRank) {
  if (oldRank < 25) return {15, 20};
  if (oldRank < 40) return {29, 24};
  return {24, 30};
}

void UpdatePoll(Session& session) {
  Store& store = session.Db();
  const int week = session.config.CurrWeek;
  Store::Transaction tx(store);
  std::vector<PollEntry> entries;
  ReadTeams(store, week, entries);
  ReadBackgroundTeams(session, week, entries);
  SelectionSortDescending(entries, [](const PollEntry& e) { return e.Points; });
  WriteRanking(store, entries);
  tx.Commit();
}

}  // namespace courtmere
