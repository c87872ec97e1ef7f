#include "history/team_history.h"

#include <vector>

#include "history/coach_rank.h"
#include "history/tourney_result.h"
#include "platform/numeric.h"
#include "store/store.h"

namespace courtmere {

namespace {

struct TeamYear {
  std::string school;
  std::string conference;
  double prestige = 0;
  int initialPrestige = 0;
  int winner = 0;
  bool nctFinalFour = false;
  bool actFinalFour = false;
  bool actWinner = false;
  int nctWinsBefore = 0;
  int wins = 0, losses = 0, confWins = 0, confLosses = 0;
};

std::vector<TeamYear> ReadTeams(Store& store) {
  std::vector<TeamYear> teams;
  for (Rows r = store.Query(
           "SELECT t.SchoolName, t.Conference, t.Prestige, t.InitialPrestige, t.Winner, "
           "t.NCTFinalFour, t.ACTFinalFour, t.ACTWinner, t.NCTWins, s.TotalWins, s.TotalLosses, "
           "s.ConfWins, s.ConfLosses FROM Team AS t LEFT JOIN TeamStats AS s ON s.SchoolName = "
           "t.SchoolName ORDER BY t.rowid");
       r.Next();) {
    teams.push_back({r.Text(0), r.Text(1), r.Double(2), r.Int(3), r.Int(4), r.Int(5) == 1,
                     r.Int(6) == 1, r.Int(7) == 1, r.Int(8), r.Int(9), r.Int(10), r.Int(11),
                     r.Int(12)});
  }
  return teams;
}

bool ConfChamp(int winner) {
  return winner == 1 || winner == 3;
}
bool NctChamp(int winner) {
  return winner >= 2;
}

// The all-time columns of Team, and InitialPrestige taking the new prestige.
void AddToTeam(Store& store, const TeamYear& t, const TourneyResult& r) {
  const bool nct = r.kind == TourneyResult::kNct;
  const bool act = r.kind == TourneyResult::kAct;
  store.Exec(
      "UPDATE Team SET OverallWins = OverallWins + ?, OverallGames = OverallGames + ?, "
      "ConfChamps = ConfChamps + ?, NCTChamps = NCTChamps + ?, NCTFinalFourApps = "
      "NCTFinalFourApps + ?, ACTFinalFourApps = ACTFinalFourApps + ?, ACTChamps = ACTChamps + "
      "?, InitialPrestige = ?, NCTApps = NCTApps + ?, NCTWins = NCTWins + ?, NCTLosses = "
      "NCTLosses + ?, ACTApps = ACTApps + ?, ACTWins = ACTWins + ?, ACTLosses = ACTLosses + ? "
      "WHERE SchoolName = ?",
      t.wins, t.wins + t.losses, ConfChamp(t.winner) ? 1 : 0, NctChamp(t.winner) ? 1 : 0,
      t.nctFinalFour ? 1 : 0, t.actFinalFour ? 1 : 0, t.actWinner ? 1 : 0,
      static_cast<int64_t>(ToStoredInt(t.prestige)), nct ? 1 : 0, nct ? r.wins : 0,
      nct && !r.champion ? 1 : 0, act ? 1 : 0, act ? r.wins : 0, act && !r.champion ? 1 : 0,
      t.school);
}

// The user's career on HeadCoach, with PrestigeChange carrying a third of
// the old value.
void AddToCoach(Store& store, const TeamYear& t, const TourneyResult& r) {
  const bool nct = r.kind == TourneyResult::kNct;
  const bool act = r.kind == TourneyResult::kAct;
  store.Exec(
      "UPDATE HeadCoach SET Wins = Wins + ?, Losses = Losses + ?, Seasons = Seasons + 1, "
      "ConfChamps = ConfChamps + ?, NCTChamps = NCTChamps + ?, NCTFinalFour = NCTFinalFour + ?, "
      "ACTFinalFour = ACTFinalFour + ?, ACTChamps = ACTChamps + ?, PrestigeChange = ? - ? + "
      "PrestigeChange / 3.0, NCTApps = NCTApps + ?, NCTWins = NCTWins + ?, NCTLosses = NCTLosses "
      "+ ?, ACTApps = ACTApps + ?, ACTWins = ACTWins + ?, ACTLosses = ACTLosses + ? WHERE Team = ?",
      t.wins, t.losses, ConfChamp(t.winner) ? 1 : 0, NctChamp(t.winner) ? 1 : 0,
      t.nctFinalFour ? 1 : 0, t.actFinalFour ? 1 : 0, t.actWinner ? 1 : 0, t.prestige,
      static_cast<double>(t.initialPrestige), nct ? 1 : 0, nct ? r.wins : 0,
      nct && !r.champion ? 1 : 0, act ? 1 : 0, act ? r.wins : 0, act && !r.champion ? 1 : 0,
      t.school);
}

// The line of a school outside both tournaments: only a losing margin of
// two games or more reads as under .500.
std::string HomeSummary(const TeamYear& t) {
  return t.wins - t.losses > -2 ? "Finished Close to .500" : "Finished under .500";
}

void WriteCoachHistory(Store& store, const TeamYear& t, const TourneyResult& r, int year) {
  store.Exec(
      "UPDATE CoachHistory SET Wins = ?, Losses = ?, ConfWins = ?, ConfLosses = ?, ConfChamps = "
      "?, NCTRecord = ?, ACTRecord = ?, Summary = ? WHERE Year = ?",
      t.wins, t.losses, t.confWins, t.confLosses, ConfChamp(t.winner) ? "Yes" : "No",
      r.kind == TourneyResult::kNct ? r.record : std::string(),
      r.kind == TourneyResult::kAct ? r.record : std::string(),
      r.kind == TourneyResult::kNone ? HomeSummary(t) : r.summary, year - 1);
}

void AddTeamHistoryRow(Store& store, const TeamYear& t, const TourneyResult& r, int year) {
  const int pollRank = static_cast<int>(
      store.ScalarInt("SELECT TeamRanking FROM Ranking WHERE SchoolName = ?", t.school)
          .value_or(0));
  store.Exec(
      "INSERT INTO TeamHistory (SchoolName, Year, Wins, Losses, ConfWins, ConfLosses, PollRank, "
      "ConfChamp, NCTRecord, ACTRecord, Summary) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
      t.school, year, t.wins, t.losses, t.confWins, t.confLosses, pollRank,
      ConfChamp(t.winner) ? 1 : 0, r.kind == TourneyResult::kNct ? r.record : std::string(),
      r.kind == TourneyResult::kAct ? r.record : std::string(),
      r.kind == TourneyResult::kNone ? HomeSummary(t) : r.summary);
}

}  // namespace

void SaveTeamHistory(Store& store, const std::string& userSchool, int year) {
  std::vector<CoachScore> scores;
  for (const TeamYear& t : ReadTeams(store)) {
    const TourneyResult r =
        ReadTourneyResult(store, t.school, t.conference, {NctChamp(t.winner), t.actWinner});
    const bool nct = r.kind == TourneyResult::kNct;
    ScoreMarks marks{t.prestige - t.initialPrestige,
                     t.winner,
                     t.nctFinalFour,
                     t.actWinner,
                     nct ? r.wins : 0,
                     t.nctWinsBefore + (nct ? r.wins : 0)};
    scores.push_back({t.school, CoachScoreOf(marks)});
    if (t.school == userSchool) {
      AddToCoach(store, t, r);
      WriteCoachHistory(store, t, r, year);
    }
    AddToTeam(store, t, r);
    AddTeamHistoryRow(store, t, r, year);
  }
  WriteCoachRanks(store, scores);
}

}  // namespace courtmere
