#include "screens/live_coach.h"

#include <cctype>
#include <cmath>
#include <map>
#include <utility>

#include "engine/fatigue.h"
#include "people/player.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kCorrect = " Please correct this and re-submit.";

// The place of a man among the side's bench and reserve records, searched
// in that order; null when he is in neither.
GamePlayer* OffTheFloor(GameSide& team, int id) {
  for (int place = 1; place <= GameSide::kBenchPlaces; ++place) {
    if (team.Bench[place].Id == id) return &team.Bench[place];
  }
  for (int place = 1; place <= GameSide::kMaxReserves; ++place) {
    if (team.Reserve[place].Id == id) return &team.Reserve[place];
  }
  return nullptr;
}

std::string YearText(const std::string& year) {
  return year.size() >= 2 ? year.substr(0, 2) : year;
}

std::string HeightCell(const std::string& stored) {
  char* end = nullptr;
  const long inches = std::strtol(stored.c_str(), &end, 10);
  return end != stored.c_str() && *end == '\0' ? HeightText(static_cast<int>(inches)) : stored;
}

// "End": energy as a share of endurance, whole percent, 100% at most.
std::string EnergyShare(int energy, int endurance) {
  if (endurance <= 0) return "0%";
  const double share = static_cast<double>(energy) / endurance * 100;
  if (share >= 100) return "100%";
  return std::to_string(static_cast<int>(std::nearbyint(share))) + "%";
}

}  // namespace

Side UserSideOf(const Game& game) {
  return game.UserSide.value_or(Side::Home);
}

GameSide& UserTeam(Game& game) {
  return game.SideOf(UserSideOf(game));
}

void PressStart(Game& game) {
  game.Resume = game.Resume != 1 ? 1 : 0;
  if (game.SubWindow == 1) game.SubWindow = 0;
}

void PressExit(Game& game) {
  game.Resume = 1;
  game.UserEndgameSide.reset();
  game.LiveGame = 0;
}

LiveReply PressTimeout(Game& game) {
  const int left = UserTeam(game).TimeoutsLeft;
  if (left <= 0) return {"", true};
  game.UserTimeoutAsked = 1;
  // The last one disables the button at once, with the request pending.
  return {"Your team will call timeout at the next opportunity", left == 1};
}

LiveReply PressSub(Game& game) {
  game.UserSubAsked = 1;
  return {"You will be able to make Subs at the next stop in play", false};
}

void ChooseTempo(Game& game, const std::string& text) {
  UserTeam(game).tactics.SetTempo(text);
}

void ChooseOffence(Game& game, const std::string& text) {
  UserTeam(game).tactics.SetOffenseType(text);
}

void ChooseDefence(Game& game, const std::string& text) {
  UserTeam(game).tactics.SetDefense(text);
}

void ChoosePress(Game& game, const std::string& text) {
  UserTeam(game).tactics.SetPress(text);
}

bool EndgameOpen(const Game& game) {
  return game.Clock < 180 && game.Half >= 2;
}

int PaceValue(const std::string& text) {
  if (text == "Normal") return 0;
  return text == "Quick" ? 1 : 2;
}

int ShotNeedValue(const std::string& text) {
  if (text == "Normal") return 0;
  return text == "Two" ? 2 : 3;
}

std::string PaceText(int pace) {
  if (pace == 0) return "Normal";
  return pace == 1 ? "Quick" : "Slow";
}

std::string ShotNeedText(int shotNeed) {
  if (shotNeed == 0) return "Normal";
  return shotNeed == 2 ? "Two" : "Three";
}

void CoachEndgame(Game& game, bool coach, const std::string& pace, const std::string& shot) {
  if (!coach) {
    game.UserEndgameSide.reset();
    return;
  }
  game.UserEndgameSide = UserSideOf(game);
  UserTeam(game).Pace = PaceValue(pace);
  UserTeam(game).ShotNeed = ShotNeedValue(shot);
}

bool LooksTired(const Game& game, int energy) {
  if (game.Half == 2) {
    if (game.Clock > 600) return energy < 1300;
    if (game.Clock > 300) return energy < 1000;
    return energy < 900;
  }
  return energy < (game.Half == 1 ? 1300 : 900);
}

std::string StopLine(const Game& game, PlayKind kind) {
  switch (kind) {
    case PlayKind::Halftime:
      return "HALFTIME - Make Second Half Adjustments";
    case PlayKind::Timeout:
      return "***TIMEOUT on the Floor***";
    case PlayKind::TimeoutTeam:
      return "***" + game.SideOf(UserSideOf(game)).School + " TIMEOUT***";
    default:
      return "";
  }
}

void FillFloorBoxes(const Game& game, FloorBoxes& boxes) {
  for (int s = 0; s < 2; ++s) {
    const GameSide& team = game.sides[s];
    for (int slot = 1; slot <= 5; ++slot) {
      boxes.ids[s][slot] = team.Court[slot].Id;
      boxes.names[s][slot] = team.TextsOf(team.Court[slot]).Name;
    }
  }
}

std::vector<std::string> SubLines(const Game& game, FloorBoxes& boxes) {
  std::vector<std::string> lines;
  for (int s = 0; s < 2; ++s) {
    const GameSide& team = game.sides[s];
    for (int slot = 1; slot <= 5; ++slot) {
      const GamePlayer& man = team.Court[slot];
      if (man.Id == boxes.ids[s][slot]) continue;
      std::string school = team.School;
      for (char& c : school) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
      const std::string& name = team.TextsOf(man).Name;
      lines.push_back(school + " SUB  -  " + name + " in for " + boxes.names[s][slot]);
      boxes.ids[s][slot] = man.Id;
      boxes.names[s][slot] = name;
    }
  }
  return lines;
}

std::string ForcedSubMessage(bool fouledOut) {
  return fouledOut ? "You had a player foul out, please sub in another player."
                   : "One of your players just left the game with an injury, please sub in "
                     "another player.";
}

bool UpdateOpen(const Game& game) {
  return game.SubWindow == 1 || game.UserTimeoutAsked == 1;
}

LiveReply UpdateLineup(Game& game, const std::array<int, 5>& starters) {
  GameSide& team = UserTeam(game);
  if (game.AtFreeThrowLine == 1 && game.BallPos >= 1 && game.BallPos <= 5 &&
      starters[game.BallPos - 1] != team.Court[game.BallPos].Id) {
    return {"You cannot sub for a player shooting freethrows."};
  }
  for (int i = 0; i < 5; ++i) {
    for (int j = i + 1; j < 5; ++j) {
      if (starters[i] == starters[j]) {
        return {"You have the same player starting in two positions, please fix and resubmit"};
      }
    }
  }
  for (int slot = 1; slot <= 5; ++slot) {
    GamePlayer& onFloor = team.Court[slot];
    const int incoming = starters[slot - 1];
    if (incoming == onFloor.Id) continue;
    GamePlayer* place = OffTheFloor(team, incoming);
    // Design decision: a man who is neither on the bench nor in the reserve
    // (he left the game) cannot come in; the slot keeps its man.
    if (place == nullptr) continue;
    team.IsStarter[slot] = onFloor.Id == team.Depth[slot] ? 0 : 1;
    std::swap(*place, onFloor);
  }
  game.SubForced = 0;
  return {"Your lineup is now updated."};
}

std::string GameplanProblem(const Gameplan& plan) {
  const auto& ids = plan.ids;
  for (int position = 0; position < 5; ++position) {
    const int a = ids[position], b = ids[position + 5], c = ids[position + 10];
    if ((a != 0 && (a == b || a == c)) || (b != 0 && b == c)) {
      return std::string(
                 "Your Depth Chart has the same player listed twice for the same "
                 "position.") +
             kCorrect;
    }
  }
  std::map<int, int> spots;
  for (int id : ids) {
    if (id != 0 && ++spots[id] > 2) {
      return std::string(
                 "Your Depth Chart has the same player on the depth chart in more than "
                 "two spots.") +
             kCorrect;
    }
  }
  for (int i = 0; i < 5; ++i) {
    for (int j = i + 1; j < 5; ++j) {
      if (ids[i] != 0 && ids[i] == ids[j]) {
        return std::string("Your Depth Chart has the same player starting at two positions.") +
               kCorrect;
      }
    }
  }
  return "";
}

std::string SaveGameplan(Session& session, const std::string& school, const Gameplan& plan) {
  const std::string problem = GameplanProblem(plan);
  if (!problem.empty()) return problem;
  const auto& i = plan.ids;
  session.Db().Exec(
      "UPDATE Team SET PG1 = ?, PG2 = ?, SG1 = ?, SG2 = ?, SF1 = ?, SF2 = ?, PF1 = ?, PF2 = ?, "
      "C1 = ?, C2 = ?, PG3 = ?, SG3 = ?, SF3 = ?, PF3 = ?, C3 = ?, Tempo = ?, OffenseType = ?, "
      "Defense = ?, Press = ? WHERE SchoolName = ?",
      i[0], i[5], i[1], i[6], i[2], i[7], i[3], i[8], i[4], i[9], i[10], i[11], i[12], i[13], i[14],
      plan.tempo, plan.offence, plan.defence, plan.press, school);
  return "Your Adjustments have been saved.";
}

Gameplan CurrentGameplan(const Game& game) {
  const GameSide& team = game.SideOf(UserSideOf(game));
  Gameplan plan;
  for (int n = 1; n <= GameSide::kDepthEntries; ++n) plan.ids[n - 1] = team.Depth[n];
  plan.tempo = team.tactics.Tempo();
  plan.offence = team.tactics.OffenseType();
  plan.defence = team.tactics.Defense();
  plan.press = team.tactics.Press();
  return plan;
}

std::vector<LiveLineupRow> LineupRows(Session& session, const Game& game, Side side) {
  const GameSide& team = game.SideOf(side);
  std::vector<LiveLineupRow> rows;
  for (int i = 1; i <= team.RosterCount; ++i) {
    const GamePlayer& man = team.Roster[i];
    const GameStat& line = team.Stats[i];
    Rows r = session.Db().Query(
        "SELECT Name, PlayerPosition, Height, PlayerYear, ScoreGrade, OutsideShootGrade, "
        "PerrDefenseGrade, PostDefenseGrade, PassingGrade, HandlingGrade, ReboundGrade, "
        "PotentialGrade FROM Player WHERE Team = ? AND Id = ?",
        team.School, man.Id);
    LiveLineupRow row{man.Id, {}};
    if (r.Next()) {
      row.cells = {r.Text(0),
                   PositionName(r.Int(1)),
                   HeightCell(r.Text(2)),
                   YearText(r.Text(3)),
                   r.Text(4),
                   r.Text(5),
                   r.Text(6),
                   r.Text(7),
                   r.Text(8),
                   r.Text(9),
                   r.Text(10),
                   r.Text(11)};
    } else {
      // A background team's man has no grades.
      row.cells = {team.Texts[i].Name,
                   PositionName(man.PlayerPosition),
                   "",
                   "",
                   "",
                   "",
                   "",
                   "",
                   "",
                   "",
                   "",
                   ""};
    }
    row.cells.push_back(EnergyShare(line.Energy, man.Endurance));
    row.cells.push_back(IsTired(game, line.Energy) ? "Yes" : "No");
    rows.push_back(std::move(row));
  }
  return rows;
}

std::vector<LineupChoice> LineupChoices(Session& session, const Game& game, Side side) {
  const GameSide& team = game.SideOf(side);
  std::vector<LineupChoice> choices;
  for (int i = 1; i <= team.RosterCount; ++i) {
    const int id = team.Roster[i].Id;
    const auto fit = session.Db().ScalarInt(
        "SELECT count(*) FROM Player WHERE Id = ? AND Health = 'Good' AND "
        "coalesce(Suspended, 0) = 0 AND coalesce(Redshirt, 0) <> 1",
        id);
    if (fit.value_or(0) > 0) choices.push_back({id, team.Texts[i].AbbrName});
  }
  return choices;
}

}  // namespace courtmere
