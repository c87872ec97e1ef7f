#include "screens/scout_report.h"

#include <fmt/format.h>

#include <algorithm>

#include "people/grading.h"
#include "people/player.h"
#include "people/player_writer.h"
#include "platform/numeric.h"
#include "screens/display_format.h"
#include "screens/roster_view.h"
#include "screens/school_record.h"
#include "screens/team_schedule.h"
#include "screens/team_stats.h"
#include "store/session.h"

namespace courtmere {

namespace {

std::string RankText(Store& store, const char* sql, const std::string& school, int shownTo,
                     const char* none) {
  const int64_t rank = store.ScalarInt(sql, school).value_or(0);
  return rank > 0 && rank <= shownTo ? fmt::format("No. {}", rank) : none;
}

std::string GameText(const ScheduleGame& g) {
  const char* where = g.Site == "Home" ? "vs." : g.Site == "Away" ? "at" : "vs.";
  return fmt::format("Week {}, {}: {} {}{}", g.Week, g.Day, where, g.Opponent,
                     g.Site == "Neutral" ? " (neutral site)" : "");
}

ScoutedPlayer Graded(Player& p, const std::optional<ScoutSkills>& scout, int year) {
  if (scout) {
    Rng rng(
        static_cast<uint64_t>(p.Id) * 1000003u + static_cast<uint64_t>(year) * 7919u +
        static_cast<uint64_t>(scout->Scoring + scout->Defending * 101 + scout->Potential * 10007));
    GradePlayerWith(rng, *scout, p);
  }
  return {
      p.Id,
      p.Name,
      PositionName(p.PlayerPosition),
      p.PlayerYear,
      p.Height,
      CInt(p.ScoutOverall),
      {p.AthleticGrade, p.ScoreGrade, p.ShootingGrade, p.OutsideShootGrade, p.ReboundGrade,
       p.PerrDefenseGrade, p.PostDefenseGrade, p.HandlingGrade, p.PassingGrade, p.PotentialGrade}};
}

void LoadRoster(Session& session, ScoutReport& report) {
  Store& store = session.Db();
  const std::optional<ScoutSkills> scout = FindScout(store, session.humanSchool);
  std::vector<int> ids;
  for (Rows r = store.Query("SELECT Id FROM Player WHERE Team = ? ORDER BY Id", report.Opponent);
       r.Next();) {
    ids.push_back(r.Int(0));
  }
  for (int id : ids) {
    Player p;
    if (LoadPlayer(store, id, p))
      report.Roster.push_back(Graded(p, scout, session.config.CurrYear));
  }
  if (ids.empty()) {
    for (Rows r = store.Query(
             "SELECT Id, Name, PlayerPosition, PlayerYear, Height FROM ScrubPlayer WHERE Team = ? "
             "ORDER BY Id",
             report.Opponent);
         r.Next();) {
      report.Roster.push_back(
          {r.Int(0), r.Text(1), PositionName(r.Int(2)), r.Text(3), r.Text(4), 0, {}});
    }
  }
  std::stable_sort(
      report.Roster.begin(), report.Roster.end(),
      [](const ScoutedPlayer& a, const ScoutedPlayer& b) { return a.Overall > b.Overall; });
}

void LoadLeaders(Session& session, ScoutReport& report) {
  const std::vector<PlayerStatRow> rows = TeamPlayerStats(session, report.Opponent);
  const auto best = [&](const char* stat, double StatLine::*value) {
    const PlayerStatRow* top = nullptr;
    for (const PlayerStatRow& r : rows) {
      if (r.Line.Games > 0 && (!top || r.Line.*value > top->Line.*value)) top = &r;
    }
    if (top)
      report.Leaders.push_back({stat, top->Id, top->Name, FormatOneDecimal(top->Line.*value)});
  };
  best("Points", &StatLine::PPG);
  best("Rebounds", &StatLine::RPG);
  best("Assists", &StatLine::APG);
}

}  // namespace

std::optional<ScoutReport> ScoutNextOpponent(Session& session) {
  Store& store = session.Db();
  std::optional<ScheduleGame> next;
  for (const ScheduleGame& g : TeamSchedule(store, session.humanSchool)) {
    if (!g.Played) {
      next = g;
      break;
    }
  }
  if (!next) return std::nullopt;
  ScoutReport report;
  report.Opponent = next->Opponent;
  report.Game = GameText(*next);
  report.Conference = store
                          .ScalarText(
                              "SELECT Conference FROM Team WHERE SchoolName = ?1 UNION ALL "
                              "SELECT Conference FROM ScrubTeam WHERE SchoolName = ?1",
                              report.Opponent)
                          .value_or("");
  report.Record = SchoolRecord(store, report.Opponent);
  report.PollRank = RankText(store, "SELECT min(TeamRanking) FROM Ranking WHERE SchoolName = ?",
                             report.Opponent, 25, "Not ranked");
  report.CriRank = RankText(store, "SELECT min(CRIRank) FROM CRIRank WHERE SchoolName = ?",
                            report.Opponent, 1 << 30, "Not ranked yet");
  report.Tactics = LoadTactics(store, report.Opponent);
  report.Scout =
      store.ScalarText("SELECT Name FROM Scout WHERE Team = ?", session.humanSchool).value_or("");
  LoadLeaders(session, report);
  LoadRoster(session, report);
  return report;
}

}  // namespace courtmere
