#include "screens/home.h"

#include <fmt/format.h>

#include "league/standings.h"
#include "screens/team_schedule.h"
#include "store/session.h"

namespace courtmere {

namespace {

std::string WinLoss(int wins, int losses) {
  return fmt::format("{}-{}", wins, losses);
}

void LoadRecord(Store& store, Home& home) {
  Rows r = store.Query(
      "SELECT TotalWins, TotalLosses, ConfWins, ConfLosses FROM TeamStats WHERE SchoolName = ?",
      home.School);
  if (!r.Next()) return;
  home.Record = WinLoss(r.Int(0), r.Int(1));
  home.ConferenceRecord = WinLoss(r.Int(2), r.Int(3));
}

void LoadPlace(Store& store, const std::string& conference, Home& home) {
  for (const StandingsTable& table : ConferenceStandings(store, conference).Tables) {
    for (size_t i = 0; i < table.Rows.size(); ++i) {
      if (table.Rows[i].SchoolName != home.School) continue;
      home.ConferencePlace =
          fmt::format("{} of {} in the {}", Ordinal(static_cast<int>(i) + 1), table.Rows.size(),
                      table.Division.empty() ? conference : table.Division);
    }
  }
}

std::string RankText(std::optional<int64_t> rank, int64_t shownTo, const char* none) {
  if (!rank || *rank <= 0 || *rank > shownTo) return none;
  return fmt::format("No. {}", *rank);
}

void LoadRanks(Store& store, Home& home) {
  // The poll publishes its first 25; the index ranks every school.
  home.PollRank = RankText(
      store.ScalarInt("SELECT min(TeamRanking) FROM Ranking WHERE SchoolName = ?", home.School), 25,
      "Not ranked");
  home.CriRank = RankText(
      store.ScalarInt("SELECT min(CRIRank) FROM CRIRank WHERE SchoolName = ?", home.School),
      INT64_MAX, "Not ranked yet");
  home.Ranks = RankHistoryOf(store, home.School);
}

HomeGame ToHomeGame(const ScheduleGame& g) {
  return {g.Week, g.Day, g.Site, g.Opponent, ResultText(g), g.BoxScore};
}

void LoadGames(Store& store, Home& home) {
  const std::vector<ScheduleGame> games = TeamSchedule(store, home.School);
  for (const ScheduleGame& g : games) {
    if (!g.Played) {
      home.Next = ToHomeGame(g);
      break;
    }
  }
  for (auto g = games.rbegin(); g != games.rend() && home.Last.size() < kLastResults; ++g) {
    if (g->Played) home.Last.push_back(ToHomeGame(*g));
  }
}

void LoadLetters(Store& store, Home& home) {
  for (Rows r = store.Query("SELECT Week, Sender, Subject FROM InboxMessage ORDER BY Id DESC "
                            "LIMIT ?",
                            static_cast<int64_t>(kNewestLetters));
       r.Next();) {
    home.Letters.push_back({r.Int(0), r.Text(1), r.Text(2)});
  }
}

std::string CalendarText(const Config& c) {
  if (c.Stage == kStageSeason) {
    return fmt::format("Week {}, {}, {}", c.CurrWeek, c.CurrDay, c.CurrYear);
  }
  return fmt::format("{}, {}", c.Stage, c.CurrYear);
}

}  // namespace

std::string Ordinal(int n) {
  const int tens = n % 100;
  const char* suffix = "th";
  if (tens < 11 || tens > 13) {
    if (n % 10 == 1) suffix = "st";
    if (n % 10 == 2) suffix = "nd";
    if (n % 10 == 3) suffix = "rd";
  }
  return fmt::format("{}{}", n, suffix);
}

Home LoadHome(Session& session, RecruitingPeriod period) {
  Home home;
  home.Todo = TodoList(session);
  if (session.humanSchool.empty()) return home;
  Store& store = session.Db();
  home.School = session.humanSchool;
  home.Coach = store.ScalarText("SELECT Name FROM HeadCoach ORDER BY rowid").value_or("");
  home.Calendar = CalendarText(session.config);
  home.Period = PeriodLabel(period);
  LoadRecord(store, home);
  LoadPlace(store, session.humanConference, home);
  LoadRanks(store, home);
  LoadGames(store, home);
  LoadLetters(store, home);
  return home;
}

}  // namespace courtmere
