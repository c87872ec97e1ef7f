#include "engine/game_model.h"

#include "engine/live_screen.h"
#include "store/session.h"

namespace courtmere {

const char* SideWord(Side side) {
  return side == Side::Home ? "Home" : "Away";
}

SubPattern ParseSubPattern(std::string_view text) {
  if (text == "More") return SubPattern::More;
  if (text == "Less") return SubPattern::Less;
  return SubPattern::Normal;
}

const char* SubPatternText(SubPattern pattern) {
  switch (pattern) {
    case SubPattern::More:
      return "More";
    case SubPattern::Less:
      return "Less";
    default:
      return "Normal";
  }
}

void GameStat::ClearCounters() {
  const int id = Id;
  std::string team = std::move(TeamName);
  *this = GameStat{};
  Id = id;
  TeamName = std::move(team);
}

Tactics::Tactics() {
  SetTempo("Normal");
  SetOffenseType("Normal");
  SetDefense("Man");
  SetPress("None");
}

void Tactics::SetTempo(std::string text) {
  tempo_ = std::move(text);
  if (tempo_ == "Up Beat") {
    tempoKind_ = TempoKind::UpBeat;
  } else if (tempo_ == "Normal") {
    tempoKind_ = TempoKind::Normal;
  } else if (tempo_ == "Slow Down") {
    tempoKind_ = TempoKind::SlowDown;
  } else {
    tempoKind_ = TempoKind::Other;
  }
}

void Tactics::SetOffenseType(std::string text) {
  offenseType_ = std::move(text);
  if (offenseType_ == "Outside") {
    offenseKind_ = OffenseKind::Outside;
  } else if (offenseType_ == "Inside") {
    offenseKind_ = OffenseKind::Inside;
  } else {
    offenseKind_ = OffenseKind::Normal;
  }
}

void Tactics::SetPress(std::string text) {
  press_ = text.empty() ? std::string("None") : std::move(text);
  if (press_ == "Full Court") {
    pressKind_ = PressKind::FullCourt;
  } else if (press_ == "Half Court") {
    pressKind_ = PressKind::HalfCourt;
  } else if (press_ == "None") {
    pressKind_ = PressKind::None;
  } else {
    pressKind_ = PressKind::Other;
  }
}

const GamePlayer* GameSide::FindRoster(int id) const {
  if (id == 0) return nullptr;
  for (int i = 1; i <= RosterCount; ++i) {
    if (Roster[i].Id == id) return &Roster[i];
  }
  return nullptr;
}

void GameSide::ClearPeople() {
  Roster.fill(GamePlayer{});
  // Assigning empty texts keeps each string's storage for the next game.
  for (PlayerTexts& texts : Texts) texts = PlayerTexts{};
  RosterCount = 0;
  BackgroundRoster = false;
  FullTexts = false;
  Stats.fill(GameStat{});
  Unattributed = GameStat{};
  Depth.fill(0);
  Court.fill(GamePlayer{});
  Bench.fill(GamePlayer{});
  Reserve.fill(GamePlayer{});
  ReserveCount = 1;
  IsStarter.fill(1);
}

Game::Game(Session& s, LiveScreen* liveScreen)
    : session(&s), rng(&s.rng), screen(liveScreen), CurrWeek(s.config.CurrWeek) {}

GameStat& Game::ScratchLine() {
  Scratch = GameStat{};
  return Scratch;
}

DayResults::DayResults() : PlayerLines(kMaxGames), TeamLines(kMaxGames) {}

void ResetGameStats(Game& game) {
  for (GameSide& side : game.sides) {
    for (int i = 1; i <= GameSide::kTeamLine; ++i) {
      GameStat& line = side.Stats[i];
      line.ClearCounters();
      if (i < GameSide::kTeamLine) line.Energy = side.Roster[i].Endurance;
    }
    side.Unattributed.ClearCounters();
  }
}

void BuildReserve(GameSide& side) {
  side.ReserveCount = 1;
  for (int r = 1; r <= side.RosterCount; ++r) {
    const GamePlayer& player = side.Roster[r];
    bool charted = false;
    for (int n = 1; n <= GameSide::kDepthEntries; ++n) {
      if (side.Depth[n] == player.Id) {
        charted = true;
        break;
      }
    }
    if (charted || side.ReserveCount > GameSide::kMaxReserves) continue;
    side.Reserve[side.ReserveCount++] = player;
  }
}

void BuildFloor(Game& game) {
  for (GameSide& side : game.sides) {
    for (int n = 1; n <= GameSide::kDepthEntries; ++n) {
      const GamePlayer* player = side.FindRoster(side.Depth[n]);
      if (player == nullptr) continue;  // a chart Id who may not play leaves the place as it was
      if (n < 6) {
        side.Court[n] = *player;
      } else {
        side.Bench[n - 5] = *player;
      }
    }
    BuildReserve(side);
  }
}

}  // namespace courtmere
