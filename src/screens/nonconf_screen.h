// The user's non-conference schedule screen, in two views: the games before
// week 5 ("pre-conference") and the games after it. Each of the user's
// non-conference games is a row listing the schools he may put in place of
// its present opponent, who stands first; a preseason tournament game is
// shown but not offered for change. SubmitGames (nonconf_submit.h) writes
// the choices.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace courtmere {

struct Session;

enum class NonConfView { kPreConference, kOther };

inline constexpr std::string_view kNoGames = "No Games";

struct NonConfChoice {
  std::string School;
  std::string Conference;
  std::string Prestige;  // the prestige word
};

struct NonConfRow {
  int Position = 0;  // 1, 2, ... in the order the view lists the games
  int GameNo = 0;
  int Week = 0;
  std::string GameDay;
  std::string GameType;
  std::string Heading;  // " Week <n>" in the view of later games
  bool UserAtHome = false;
  std::string Opponent;
  std::string OpponentConf;
  // The present opponent first, then the candidates; empty for a game not
  // offered for change.
  std::vector<NonConfChoice> Choices;

  bool Offered() const { return !Choices.empty(); }
};

struct NonConfScreen {
  NonConfView View = NonConfView::kPreConference;
  std::string Title;
  std::string Team;
  std::string Conference;
  std::vector<NonConfRow> Rows;  // none: the screen shows kNoGames
};

// The games of weeks 1 to 4, each with up to eight candidates drawn by the
// rules of its position in the list.
NonConfScreen ShowPreConferenceGames(Session& session, const std::string& team);
// The games after week 5, each with the schools that play a non-conference
// game on that day.
NonConfScreen ShowOtherGames(Session& session, const std::string& team);

// True when `school` may be chosen for row `row`: it is in the row's list, or,
// in the pre-conference view, it fits the row's rules wherever the draw of
// its list began. For the command line, which names schools without a list.
bool ChoiceOffered(Session& session, const NonConfScreen& screen, size_t row,
                   const std::string& school);

}  // namespace courtmere
