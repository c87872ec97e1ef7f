// The game model: one basketball game in memory, from a copy of both teams.
//
// A `Game` holds everything the possession loop shares: the two sides with
// their rosters, depth charts, the five men on the floor, the bench and the
// reserve queue, the statistics line of every player, the tactics, the clock
// and the game-wide scalars. It is a plain value with no globals behind it, so
// two games can run at once; the next game run on the same value overwrites
// it. Floor, bench and reserve records are value copies of roster records: a
// substitution swaps whole records. A player's live numbers (energy, fouls)
// live in his statistics line, found by `Id`.
//
// Arrays keep the game's 1-based numbering: index 0 of every array is unused
// (the reserve queue uses index 0 as its empty head place).
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "people/skill_ratings.h"
#include "platform/rng.h"

namespace courtmere {

struct Session;
class LiveScreen;

// A side of the game. Its text form, "Home" or "Away", is what the screens
// and the log show.
enum class Side : uint8_t { Home = 0, Away = 1 };
inline Side OtherSide(Side side) {
  return side == Side::Home ? Side::Away : Side::Home;
}
const char* SideWord(Side side);

enum class SubPattern : uint8_t { Normal, More, Less };
// "More" and "Less" as such; any other text, the empty one included, is "Normal".
SubPattern ParseSubPattern(std::string_view text);
const char* SubPatternText(SubPattern pattern);

// One player as the game sees him: numbers only, so that the records the
// floor, bench and reserve copy on every substitution are plain values. His
// texts stand beside the roster (`GameSide::Texts`). Of his ratings the game
// loads those its rules read: DefReb, OffReb and Jumping stay 0.
struct GamePlayer : SkillRatings {
  int Id = 0;  // 0 in a floor slot: the slot is empty
  int PlayerPosition = 0;
  int AvoidInjury = 0;
  int TimeInjured = 0;
  int Intelligence = 0;
  SubPattern Pattern = SubPattern::Normal;
  // Where his roster record, texts and statistics line stand in his side's
  // arrays (0: none). Set once, when the roster is loaded: floor, bench and
  // reserve records are copies of roster records, and the lines never move
  // during a game, so it holds for every copy. A record made any other way
  // must set it too. A blank record (Id 0) always has 0 here.
  int StatIndex = 0;

  // Turns the record into a blank one: the man is gone from his place.
  void MakeBlank() {
    Id = 0;
    StatIndex = 0;
  }
};

// The texts of a roster record. Every game reads AbbrName (the box score
// and the leaders show it); Name, PlayerYear and Health only a game that
// shows its plays, or a dump, reads (see GameSide::FullTexts).
struct PlayerTexts {
  std::string Name;
  std::string AbbrName;
  std::string PlayerYear;
  std::string Team;
  std::string Health;
};

// The statistics line of one player, or in entry 13 of a side, of the team.
struct GameStat {
  int Id = 0;
  int ShotAttempts = 0;
  int ShotsMade = 0;
  int ThreeAttempts = 0;
  int ThreesMade = 0;
  int Points = 0;
  int OffRebounds = 0;
  int Assists = 0;
  int Turnovers = 0;
  int FreeThrowAttempts = 0;
  int FreeThrowsMade = 0;
  int DefRebounds = 0;
  int Steals = 0;
  int ShotBlocks = 0;
  int Fouls = 0;
  int Energy = 0;
  int SecondsPlayed = 0;
  std::string TeamName;
  int PlusMinus = 0;

  // Zeroes every counter; keeps Id and TeamName.
  void ClearCounters();
};

enum class TempoKind : uint8_t { UpBeat, Normal, SlowDown, Other };
enum class OffenseKind : uint8_t { Outside, Inside, Normal };
enum class PressKind : uint8_t { FullCourt, HalfCourt, None, Other };

// A side's tactics: the texts of the team's row, and what the rules read
// from them. Set through the setters so the two never disagree.
class Tactics {
 public:
  Tactics();
  void SetTempo(std::string text);
  void SetOffenseType(std::string text);
  void SetDefense(std::string text) { defense_ = std::move(text); }
  // A null or empty column counts as "None".
  void SetPress(std::string text);

  const std::string& Tempo() const { return tempo_; }
  const std::string& OffenseType() const { return offenseType_; }
  const std::string& Defense() const { return defense_; }
  const std::string& Press() const { return press_; }

  TempoKind TempoRule() const { return tempoKind_; }
  OffenseKind OffenseRule() const { return offenseKind_; }
  PressKind PressRule() const { return pressKind_; }

 private:
  std::string tempo_, offenseType_, defense_, press_;
  TempoKind tempoKind_ = TempoKind::Normal;
  OffenseKind offenseKind_ = OffenseKind::Normal;
  PressKind pressKind_ = PressKind::None;
};

// Everything that exists once per side.
struct GameSide {
  static constexpr int kMaxRoster = 12;
  static constexpr int kTeamLine = 13;
  static constexpr int kDepthEntries = 15;
  static constexpr int kBenchPlaces = 10;
  static constexpr int kMaxReserves = 8;

  std::string School;
  bool UserTeam = false;  // the school's Owner is "Human"
  // The school's row as read with its chart: whether it was found, and its
  // rating and prestige (for the crowd).
  bool HasRow = false;
  int TeamRating = 0;
  double Prestige = 0;

  std::array<GamePlayer, kMaxRoster + 1> Roster{};
  // Texts[i] belongs to Roster[i]; Texts[0], always empty, to a blank record.
  std::array<PlayerTexts, kMaxRoster + 1> Texts{};
  int RosterCount = 0;
  // Whether the roster came from the background players' table, and whether
  // its full texts have been read.
  bool BackgroundRoster = false;
  bool FullTexts = false;
  std::array<GameStat, kTeamLine + 1> Stats{};
  // What the play rules booked to a floor slot that held no man (see
  // AddStat): the team line has it, no man's line does, so the team line
  // is the sum of the players' lines and this one. Never shown.
  GameStat Unattributed;
  std::array<int, kDepthEntries + 1> Depth{};
  // The remembered answers of DepthStatIndex, a cache only.
  mutable std::array<int, kDepthEntries + 1> DepthLine{};
  std::array<GamePlayer, 6> Court{};
  std::array<GamePlayer, kBenchPlaces + 1> Bench{};
  // The reserve queue: index 0 is its empty head place, reserves from 1; the
  // next free index is ReserveCount. One place more than the reserves can
  // fill, so the queue's turn never runs off the end.
  std::array<GamePlayer, kMaxReserves + 2> Reserve{};
  int ReserveCount = 1;
  std::array<int, 6> IsStarter{};

  Tactics tactics;
  int OffCoach = 0;
  int DefCoach = 0;
  int Trainer = 0;

  int Score = 0;
  int Fouls = 0;     // team fouls
  int Pace = 0;      // end-game pace: 0 Normal, 1 Quick, 2 Slow
  int ShotNeed = 0;  // end-game shot wanted: 0 Normal, 2 Two, 3 Three
  int TimeoutsLeft = 3;

  GameStat& Team() { return Stats[kTeamLine]; }
  const GameStat& Team() const { return Stats[kTeamLine]; }

  // The index (1 to 13) of the statistics line whose Id is `id`; 0 when none
  // matches. Id 0 never matches: a blank record has no line.
  int FindStatIndex(int id) const {
    if (id == 0) return 0;
    for (int i = 1; i <= kTeamLine; ++i) {
      if (Stats[i].Id == id) return i;
    }
    return 0;
  }
  // The statistics line whose Id is `id`, or null.
  GameStat* FindStat(int id) {
    const int i = FindStatIndex(id);
    return i == 0 ? nullptr : &Stats[i];
  }
  const GameStat* FindStat(int id) const {
    const int i = FindStatIndex(id);
    return i == 0 ? nullptr : &Stats[i];
  }
  // The index of a record's line (0: none, and for a blank record), from its
  // StatIndex: the same line FindStat(man.Id) finds. Inline and unchecked:
  // the possession loop asks for it some 8,000 times a game.
  int StatIndexOf(const GamePlayer& man) const { return man.StatIndex; }
  GameStat* StatOf(const GamePlayer& man) {
    const int i = StatIndexOf(man);
    return i == 0 ? nullptr : &Stats[i];
  }
  const GameStat* StatOf(const GamePlayer& man) const {
    return const_cast<GameSide*>(this)->StatOf(man);
  }
  // The index (1 to 13) of the statistics line of depth-chart entry
  // `entry`'s man; 0 when the entry is empty or he has no line. Remembered
  // per entry and checked on every call, so the possession loop does not
  // search; a stale entry is searched again.
  int DepthStatIndex(int entry) const {
    const int id = Depth[entry];
    if (id == 0) return 0;
    int& known = DepthLine[entry];
    // Stats[0] is never a player's line: its Id stays 0.
    if (Stats[known].Id != id) known = FindStatIndex(id);
    return known;
  }
  // The roster record with that Id, or null.
  const GamePlayer* FindRoster(int id) const;
  // The roster index of a record: his roster record, texts and line share
  // one index.
  int RosterIndexOf(const GamePlayer& man) const { return StatIndexOf(man); }
  // The texts of a record (the empty ones for a blank or unknown record).
  const PlayerTexts& TextsOf(const GamePlayer& man) const { return Texts[RosterIndexOf(man)]; }
  // The short name of the man in a floor slot.
  const std::string& CourtName(int slot) const { return TextsOf(Court[slot]).AbbrName; }
  // True when no floor slot holds a blank record.
  // Short-circuit: the floor is nearly always full, so the branches are
  // foreseen.
  bool FloorFull() const {
    return Court[1].Id != 0 && Court[2].Id != 0 && Court[3].Id != 0 && Court[4].Id != 0 &&
           Court[5].Id != 0;
  }
  bool OnCourt(int id) const {
    return (Court[1].Id == id) | (Court[2].Id == id) | (Court[3].Id == id) | (Court[4].Id == id) |
           (Court[5].Id == id);
  }

  // Empties rosters, lines, floor, bench, reserve and depth chart.
  void ClearPeople();
};

// The kinds of a play-by-play line; they decide whose name goes in it.
enum class PlayKind : uint8_t {
  Offense,
  Defense,
  Pass,
  Foul,
  Subs,
  Halftime,
  Timeout,
  TimeoutTeam
};

// The statistics `AddStat` books, by their literal names.
enum class Stat : uint8_t {
  Assist,            // "Assist"
  ShotAttempt,       // "Shot Attempt"
  ShotMade,          // "Shot Made"
  ThreeAttempt,      // "Three Attempt"
  ThreeMade,         // "Three Made"
  OffRebound,        // "Off Rebound"
  Turnover,          // "Turnover"
  FreeThrowAttempt,  // "Free Throw Attempt"
  FreeThrowMade,     // "Free Throw Made"
  DefRebound,        // "Def Rebound"
  ShotBlock,         // "Shot Block"
  Steal,             // "Steal"
  Foul,              // "Foul"
  AllowPoint,        // "Allow Point"
};

// "Offense" is the side named by Possession, "Defense" the other one.
enum class SideWordRole : uint8_t { Offense, Defense };

// Each side's best scorer and rebounder of the game, kept on request.
struct GameLeaders {
  std::array<int, 2> Points{};
  std::array<std::string, 2> PointsName;
  std::array<int, 2> Rebounds{};
  std::array<std::string, 2> ReboundsName;
};

struct Game {
  explicit Game(Session& session, LiveScreen* screen = nullptr);

  Session* session;
  Rng* rng;
  LiveScreen* screen;

  std::array<GameSide, 2> sides;

  // Shared scalars.
  Side Possession = Side::Home;
  int BallPos = 1;
  int PossState = 0;  // 0 live with Possession; 1 changes hands live; 2 changes on a dead ball
  int Half = 1;
  int Clock = 1200;
  int LastClock = 1200;
  int ShotClock = 35;
  int Distance = 35;  // feet from the basket of the ball handler
  int Openness = 20;
  int Footwork = 0;
  int Rebounded = 0;
  int Passer = 0;
  int Blocker = 0;
  int Fouler = 0;
  Side TipWinner = Side::Home;
  int DefNoise = 0;
  int TransitionEdge = 0;
  int Crowd = 0;
  int CourtEdge = 0;
  int AtFreeThrowLine = 0;
  int LiveGame = 0;
  std::optional<Side> UserSide;         // the user's school in this game, if any
  std::optional<Side> UserEndgameSide;  // the side whose end game the user runs
  int UserTimeoutAsked = 0;
  int UserTimeoutDue = 0;
  int UserSubAsked = 0;
  int SubWindow = 0;
  int SubForced = 0;
  int Resume = 0;
  // Coaching the finish: the game runs unattended until the last three
  // minutes of the second half or of an overtime with the margin at 8 points
  // or less; then the live screen opens on it (and this turns false).
  bool FinishWatch = false;
  bool FoulTried = false;
  bool Overtime = false;
  int OfficialTimeouts = 0;
  int CurrWeek = 1;

  // The play-by-play of the current period: the first LogCount entries of
  // GameLogLines (the others only keep their storage); and the files.
  std::vector<std::string> GameLogLines;
  int LogCount = 0;
  std::filesystem::path BoxFileName;
  std::filesystem::path GameLogFileName;  // empty: no log
  bool WriteLog = false;
  // The log's text so far (its heading and the blocks of the periods
  // played), and whether it is still to be written: the file gets it in one
  // write when the game ends, or stops.
  bool GameLogPending = false;
  std::string GameLogText;

  GameLeaders Leaders;

  GameSide& SideOf(Side side) { return sides[static_cast<int>(side)]; }
  const GameSide& SideOf(Side side) const { return sides[static_cast<int>(side)]; }
  GameSide& Home() { return sides[0]; }
  GameSide& Away() { return sides[1]; }
  const GameSide& Home() const { return sides[0]; }
  const GameSide& Away() const { return sides[1]; }
  GameSide& Offense() { return SideOf(Possession); }
  GameSide& Defense() { return SideOf(OtherSide(Possession)); }
  const GameSide& Offense() const { return SideOf(Possession); }
  const GameSide& Defense() const { return SideOf(OtherSide(Possession)); }
  Side DefenseSide() const { return OtherSide(Possession); }
  GameSide& SideOf(SideWordRole role) {
    return role == SideWordRole::Offense ? Offense() : Defense();
  }

  // The statistics line of a man on the floor: his own, or a scratch line
  // when the slot holds a blank record.
  GameStat& LineOf(GameSide& side, const GamePlayer& man) {
    GameStat* line = side.StatOf(man);
    return line != nullptr ? *line : ScratchLine();
  }
  // Clears the scratch line and gives it.
  GameStat& ScratchLine();

  // True when someone will read the text of the play lines: a game log, or
  // a live screen that is being watched.
  bool WantsText() const { return WriteLog || Live(); }
  bool Live() const { return screen != nullptr && LiveGame == 1; }

  // The scratch line that a blank record plays with; never shown.
  GameStat Scratch;
};

// The day's result tables: each game's statistics lines, kept by batch index
// until the post-game recording writes them.
struct DayTeamLine {
  GameStat Home;
  GameStat Away;
  std::string GameType;
};

struct DayResults {
  static constexpr int kMaxGames = 151;  // batch index 0 to 150
  static constexpr int kAwayOffset = 14;

  DayResults();
  // Home lines at 1..13, away lines at 15..27.
  std::vector<std::array<GameStat, 28>> PlayerLines;
  std::vector<DayTeamLine> TeamLines;
};

// Sets entries 1 to 13 of both sides to zero in every counter, the players'
// energy to their endurance.
void ResetGameStats(Game& game);

// Fills floor, bench and reserve of both sides from roster and depth chart.
void BuildFloor(Game& game);
void BuildReserve(GameSide& side);

}  // namespace courtmere
