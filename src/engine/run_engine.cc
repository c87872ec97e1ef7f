#include "engine/run_engine.h"

#include <exception>

#include "cpu/computer_roster.h"
#include "engine/game_driver.h"
#include "engine/live_screen.h"
#include "engine/team_loader.h"
#include "store/session.h"

namespace courtmere {

namespace {

void ResetGame(Game& game, const GameRequest& request) {
  for (GameSide& side : game.sides) {
    side.ClearPeople();
    side.tactics = Tactics();
    side.OffCoach = side.DefCoach = side.Trainer = 0;
    side.Score = side.Fouls = side.Pace = side.ShotNeed = 0;
    side.TimeoutsLeft = 3;
    side.UserTeam = false;
    side.HasRow = false;
  }
  game.Home().School = request.HomeTeam;
  game.Away().School = request.AwayTeam;
  game.Possession = Side::Home;
  game.BallPos = 1;
  game.PossState = 0;
  game.Half = 1;
  game.Passer = game.Blocker = game.Fouler = 0;
  game.Overtime = false;
  game.FoulTried = false;
  game.OfficialTimeouts = 0;
  game.AtFreeThrowLine = 0;
  game.UserTimeoutAsked = game.UserTimeoutDue = game.UserSubAsked = 0;
  game.SubWindow = game.SubForced = game.Resume = 0;
  game.UserSide.reset();
  game.UserEndgameSide.reset();
  game.CurrWeek = game.session->config.CurrWeek;
  game.Leaders = GameLeaders{};
  game.LogCount = 0;
}

void NameFiles(Game& game, const GameRequest& request, std::string& boxFile,
               std::string& gameLogFile) {
  const bool wantLog = gameLogFile != "none";
  game.WriteLog = false;
  game.BoxFileName.clear();
  game.GameLogFileName.clear();
  if (!request.WriteFiles) {
    boxFile.clear();
    gameLogFile = "none";
    return;
  }
  const ProgramFolder& folder = game.session->folder;
  folder.EnsureFolder("\\log\\");
  game.BoxFileName = GameFilePath(folder, "Box", request.GameNo, request.BatchIndex);
  boxFile = game.BoxFileName.string();
  if (wantLog) {
    game.GameLogFileName = GameFilePath(folder, "GameLog", request.GameNo, request.BatchIndex);
    game.WriteLog = true;
    gameLogFile = game.GameLogFileName.string();
  } else {
    gameLogFile = "none";
  }
}

// The first team with an empty depth-chart entry, home entry i before away
// entry i; null when both charts are full.
const GameSide* TeamWithGap(const Game& game) {
  for (int n = 1; n <= GameSide::kDepthEntries; ++n) {
    if (game.Home().Depth[n] == 0) return &game.Home();
    if (game.Away().Depth[n] == 0) return &game.Away();
  }
  return nullptr;
}

void RepairDepthChart(Session& session, const std::string& school) {
  Store& store = session.Db();
  if (store.ScalarInt("SELECT COUNT(*) FROM Team WHERE SchoolName = ?", school).value_or(0) > 0) {
    SetTeamLineup(session, school, 0);
  } else if (store.ScalarInt("SELECT COUNT(*) FROM ScrubTeam WHERE SchoolName = ?", school)
                 .value_or(0) > 0) {
    SetScrubLineup(session, school);
  }
}

// Reads both charts, repairing a team with a gap; after the third gap the
// game cannot be played.
bool CheckDepthCharts(Game& game) {
  for (int round = 1; round <= 3; ++round) {
    LoadDepthAndTactics(game, Side::Home);
    LoadDepthAndTactics(game, Side::Away);
    const GameSide* gap = TeamWithGap(game);
    if (gap == nullptr) return true;
    const std::string school = gap->School;
    RepairDepthChart(*game.session, school);
    if (round == 3) {
      game.session->ui.Message("Please set the depth chart for " + school +
                               " before trying to sim this game.");
    }
  }
  return false;
}

void CopyToDay(const Game& game, DayResults& day, const GameRequest& request) {
  auto& lines = day.PlayerLines[request.BatchIndex];
  for (int k = 1; k < GameSide::kTeamLine; ++k) {
    lines[k] = game.Home().Stats[k];
    lines[k + DayResults::kAwayOffset] = game.Away().Stats[k];
  }
  DayTeamLine& team = day.TeamLines[request.BatchIndex];
  team.Home = game.Home().Team();
  team.Away = game.Away().Team();
  team.GameType = request.GameType;
}

void KeepLeaders(Game& game) {
  for (int s = 0; s < 2; ++s) {
    const GameSide& side = game.sides[s];
    for (int k = 1; k < GameSide::kTeamLine; ++k) {
      const GameStat& line = side.Stats[k];
      const int rebounds = line.OffRebounds + line.DefRebounds;
      if (line.Points > game.Leaders.Points[s]) {
        game.Leaders.Points[s] = line.Points;
        game.Leaders.PointsName[s] = side.Texts[k].AbbrName;
      }
      if (rebounds > game.Leaders.Rebounds[s]) {
        game.Leaders.Rebounds[s] = rebounds;
        game.Leaders.ReboundsName[s] = side.Texts[k].AbbrName;
      }
    }
  }
}

int Play(Game& game, DayResults& day, const GameRequest& request, std::string& boxFile,
         std::string& gameLogFile) {
  NameFiles(game, request, boxFile, gameLogFile);
  ResetGame(game, request);
  if (!CheckDepthCharts(game)) return 0;

  game.Crowd = CrowdStrength(game);
  game.CourtEdge = request.CourtEdge;
  LoadCoachValues(game);
  game.LiveGame = request.Live;
  game.FinishWatch = false;
  const bool watchFinish = request.Live == 0 && request.CoachFinish == 1 && game.screen != nullptr;
  for (Side side : {Side::Home, Side::Away}) {
    LoadRoster(game, side);
    // The finish's screen names the players: their texts are read now,
    // while the game is still unattended.
    if (game.WantsText() || watchFinish) LoadFullTexts(game, side);
  }
  BuildFloor(game);
  game.Home().Team().TeamName = request.HomeTeam;
  game.Away().Team().TeamName = request.AwayTeam;
  if (game.Away().UserTeam) {
    game.UserSide = Side::Away;
  } else if (game.Home().UserTeam) {
    game.UserSide = Side::Home;
  }
  game.FinishWatch = watchFinish && game.UserSide.has_value();

  if (game.Live()) game.screen->PrepareGame(game);
  StartGame(game, request.Live);
  CopyToDay(game, day, request);
  if (request.KeepLeaders == 1) KeepLeaders(game);
  if (game.screen != nullptr && (request.Live == 1 || game.LiveGame == 1)) {
    game.screen->Finish(game);
  }
  game.FinishWatch = false;
  return 1;
}

}  // namespace

std::filesystem::path GameFilePath(const ProgramFolder& folder, std::string_view kind, int gameNo,
                                   int batchIndex) {
  return folder.Path("\\log\\" + std::string(kind) + std::to_string(gameNo) + "-" +
                     std::to_string(batchIndex) + ".txt");
}

int RunEngine(Game& game, DayResults& day, const GameRequest& request, std::string& boxFile,
              std::string& gameLogFile) {
  try {
    return Play(game, day, request, boxFile, gameLogFile);
  } catch (const std::exception&) {
    game.session->ui.Message("An error occured in the Run Engine routine");
    return 0;
  }
}

}  // namespace courtmere
