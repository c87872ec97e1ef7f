#include "season/day_screen.h"

#include <algorithm>

#include "league/seeded_name.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kRowColumns =
    "GameNo, GameType, HomeTeam, AwayTeam, HomeScore, AwayScore, HomePoints, HomeRebounds, "
    "AwayPoints, AwayRebounds";

void ReadRows(Session& session, const std::string& table, const std::string& sql,
              std::vector<DayRow>& out, const CalendarDay& day) {
  Store& store = session.Db();
  Rows rows = table == "NonConfSchedule" ? store.Query(sql, session.humanConference,
                                                       session.humanConference, day.week, day.day)
                                         : store.Query(sql, day.week, day.day);
  while (rows.Next()) {
    DayRow r;
    r.Table = table;
    r.GameNo = rows.Int(0);
    r.GameType = rows.Text(1);
    r.HomeTeam = rows.Text(2);
    r.AwayTeam = rows.Text(3);
    r.HomeScore = rows.Int(4);
    r.AwayScore = rows.Int(5);
    r.HomePoints = rows.Text(6);
    r.HomeRebounds = rows.Text(7);
    r.AwayPoints = rows.Text(8);
    r.AwayRebounds = rows.Text(9);
    out.push_back(std::move(r));
  }
}

std::string ConferenceSql(const std::string& table, const char* order) {
  return std::string("SELECT ") + kRowColumns + " FROM " + table +
         " WHERE Week = ? AND GameDay = ? ORDER BY GameNo " + order;
}

// Every game of the day that belongs on the user's list, played or not.
std::vector<DayRow> ListedRows(Session& session, const CalendarDay& day) {
  std::vector<DayRow> rows;
  const std::string& table = session.humanScheduleTable;
  if (day.week < 16) {
    ReadRows(session, "NonConfSchedule",
             std::string("SELECT ") + kRowColumns +
                 " FROM NonConfSchedule WHERE (HomeConf = ? OR AwayConf = ? OR GameType <> "
                 "'NonConference') AND Week = ? AND GameDay = ? ORDER BY GameNo ASC",
             rows, day);
    ReadRows(session, table, ConferenceSql(table, "ASC"), rows, day);
  } else if (day.week == 16) {
    // The opening day of the conference tournament in game order, its later
    // rounds from the last game back.
    ReadRows(session, table, ConferenceSql(table, day.day == "Thursday" ? "ASC" : "DESC"), rows,
             day);
  } else {
    ReadRows(session, table, ConferenceSql(table, "ASC"), rows, day);
  }
  return rows;
}

bool IsUsersRow(const DayRow& row, const std::string& school) {
  return SeededName::Parse(row.HomeTeam).school == school ||
         SeededName::Parse(row.AwayTeam).school == school;
}

void WorkOutButtons(Session& session, DayScreen& screen) {
  const Config& c = session.config;
  const CalendarDay today{c.CurrWeek, c.CurrDay};
  const bool seasonRuns = c.Stage == kStageSeason && c.CurrWeek <= kLastSeasonWeek;
  screen.simEnabled = seasonRuns && screen.shown == today;
  const bool weekFiveToday = screen.shown == today && today.week == 5;
  screen.nextEnabled = screen.shown.week < kSeasonOverWeek && !weekFiveToday;
  screen.prevEnabled = !(screen.shown.week == 1 && screen.shown.day == "Thursday");
}

}  // namespace

std::string DayScreen::Caption() const {
  return "Week " + std::to_string(shown.week) + ", " + std::to_string(year);
}

int DayScreen::UnplayedCount() const {
  return static_cast<int>(
      std::count_if(rows.begin(), rows.end(), [](const DayRow& r) { return !r.Played(); }));
}

std::string RankedName(Session& session, const std::string& school) {
  const int rank = static_cast<int>(
      session.Db()
          .ScalarInt("SELECT TeamRanking FROM Ranking WHERE SchoolName = ?", school)
          .value_or(0));
  // Design decision: a rank of 0 is a team the poll has not ranked, not one
  // ahead of the first.
  if (rank < 1 || rank > 25) return school;
  return std::to_string(rank) + ". " + school;
}

void SettleWeekFive(Session& session) {
  Config& c = session.config;
  if (c.CurrWeek != 5 || c.CurrDay != "Thursday") return;
  session.Db().Exec("UPDATE Config SET CurrDay = 'Saturday' WHERE IdConfig = 0");
  c.CurrDay = "Saturday";
}

DayScreen OpenDayScreen(Session& session) {
  SettleWeekFive(session);
  DayScreen screen;
  screen.shown = {session.config.CurrWeek, session.config.CurrDay};
  screen.coachGame = session.config.PlayByPlay == 1;
  ShowDay(session, screen);
  return screen;
}

void ShowDay(Session& session, DayScreen& screen) {
  screen.year = session.config.CurrYear;
  screen.rows = ListedRows(session, screen.shown);
  for (DayRow& row : screen.rows) {
    row.HomeShown = RankedName(session, row.HomeTeam);
    row.AwayShown = RankedName(session, row.AwayTeam);
  }
  const std::string& school = session.humanSchool;
  const auto users = std::find_if(screen.rows.begin(), screen.rows.end(),
                                  [&](const DayRow& r) { return IsUsersRow(r, school); });
  screen.userPlays = users != screen.rows.end();
  if (screen.userPlays) std::rotate(screen.rows.begin(), users, users + 1);
  screen.notice.clear();
  if (screen.shown.week == 5) {
    screen.notice = {"No Games Today", "Click Sim Day to", "Advance to next week"};
  } else if (screen.rows.empty()) {
    screen.notice = {screen.shown.week < 16 ? "No Games Today" : "BYE"};
  }
  WorkOutButtons(session, screen);
}

void ShowNextDay(Session& session, DayScreen& screen) {
  if (screen.shown.week >= kSeasonOverWeek) return;
  screen.shown = NextDay(screen.shown.week, screen.shown.day);
  if (screen.shown.week == 5) {
    SettleWeekFive(session);
    screen.shown.day = "Saturday";
  }
  ShowDay(session, screen);
}

void ShowPreviousDay(Session& session, DayScreen& screen) {
  screen.shown = PreviousDay(screen.shown.week, screen.shown.day);
  ShowDay(session, screen);
}

}  // namespace courtmere
