// The Today's Games screen as data: the day shown, its games with their
// columns, the notice of a day without games, the coach-this-game box and
// which of Sim Day, Next Day and Previous Day can be pressed. The desktop
// program only displays it; the command-line tool prints it.
//
// The games of a day are the user's part of it: before week 16 the
// non-conference rows of his conference's teams and every tournament row
// of the day, then his conference's table; in week 16 his conference's
// tournament; from week 17 on every national-tournament game, all of which
// stand in his conference's table.
#pragma once

#include <string>
#include <vector>

#include "season/calendar.h"

namespace courtmere {

struct Session;

struct DayRow {
  int GameNo = 0;
  std::string Table;  // the schedule table that holds the row
  std::string GameType;
  // As stored: a national-tournament side carries its seed ("1. Duke").
  std::string HomeTeam;
  std::string AwayTeam;
  // As shown: a team of the top 25 carries its poll rank ("3. Duke").
  std::string HomeShown;
  std::string AwayShown;
  int HomeScore = 0;
  int AwayScore = 0;
  std::string HomePoints;  // the leaders, "<name>-<value>"
  std::string HomeRebounds;
  std::string AwayPoints;
  std::string AwayRebounds;

  // A row is played once its home score is not 0.
  bool Played() const { return HomeScore != 0; }
};

struct DayScreen {
  CalendarDay shown;
  int year = 0;
  std::vector<DayRow> rows;
  // The text shown in place of the games: "No Games Today" before week 16
  // and "BYE" from then on; week 5 adds "Click Sim Day to", "Advance to
  // next week".
  std::vector<std::string> notice;
  bool userPlays = false;  // the coach-this-game box is shown
  bool coachGame = false;  // and ticked: the user's game runs live
  // Ticked instead: the user's game runs unattended until its close finish,
  // which he coaches live.
  bool coachFinish = false;
  bool simEnabled = false;
  bool nextEnabled = false;
  bool prevEnabled = false;

  // "Week <n>, <year>".
  std::string Caption() const;
  int UnplayedCount() const;
};

// The screen's columns.
inline constexpr const char* kDayColumns[] = {"Home Team", "Score",    "Away Team", "Score",
                                              "Points(H)", "Rebs.(H)", "Points(A)", "Rebs.(A)"};

// Opens the screen on the dynasty's day, the box ticked by the option
// "View Play-By-Play".
DayScreen OpenDayScreen(Session& session);

// Lists the games of the shown day and works out the buttons.
void ShowDay(Session& session, DayScreen& screen);

// Next Day and Previous Day: walk the calendar without changing the
// dynasty's day, except that reaching Thursday of week 5 turns the
// dynasty's day into its Saturday.
void ShowNextDay(Session& session, DayScreen& screen);
void ShowPreviousDay(Session& session, DayScreen& screen);

// "<rank>. <school>" for a team ranked 1 to 25 in the poll, else the school.
std::string RankedName(Session& session, const std::string& school);

// Turns the dynasty's Thursday of week 5 into its Saturday, in the store
// and in the session.
void SettleWeekFive(Session& session);

}  // namespace courtmere
