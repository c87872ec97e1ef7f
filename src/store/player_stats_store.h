// The season's individual statistics, held in memory between saves.
//
// Up to 250 teams, each with its school name and up to 15 player records.
// Teams and player slots are numbered from 1, as the season history and the
// post-game recording count them; index 0 of each array is never used.
// The post-game recording adds each game to it; the season history loads it
// from and saves it to the store.
#pragma once

#include <array>
#include <string>
#include <string_view>

namespace courtmere {

// One player's season figures and the week's figures for the weekly award.
struct PlayerSeasonLine {
  int Id = 0;
  int PlayerPosition = 0;
  double WeekPoints = 0;
  double WeekRebounds = 0;
  double WeekAssists = 0;
  double WeekSteals = 0;
  double WeekBlocks = 0;
  double WeekTurnovers = 0;
  double AwardScore = 0;
  int Shots = 0;
  int ShotsMade = 0;
  int Threes = 0;
  int ThreesMade = 0;
  int Points = 0;
  int OffRebounds = 0;
  int Assists = 0;
  int Turnovers = 0;
  int FreeThrows = 0;
  int FTMade = 0;
  int DefRebounds = 0;
  int Steals = 0;
  int ShotBlocks = 0;
  int Fouls = 0;
  int Minutes = 0;
  int Games = 0;
  double PPG = 0;
  double RPG = 0;
  double APG = 0;
  double SPG = 0;
  double BPG = 0;
  double TOPG = 0;
  double MPG = 0;
  double FGPercent = 0;
  double ThreePercent = 0;
  double FTPercent = 0;
  double Score = 0;
  int PlusMinus = 0;
};

// One team of the store: its school and its players in slots 1 to 15.
struct TeamSeasonLines {
  static constexpr int kSlots = 15;

  std::string SchoolName;
  std::string Conference;
  std::array<PlayerSeasonLine, kSlots + 1> Players{};  // 1..15
};

class PlayerStatsStore {
 public:
  static constexpr int kMaxTeams = 250;
  // The post-game recording looks a team up below this index only.
  static constexpr int kRecordingLimit = 150;

  PlayerStatsStore();

  // Team at index 1..kMaxTeams.
  TeamSeasonLines& Team(int index) { return teams_[index]; }
  const TeamSeasonLines& Team(int index) const { return teams_[index]; }

  // The index of the school, searching from 1 while the index is below
  // `limit`; 0 when the school is not found there.
  int FindTeam(std::string_view school, int limit = kRecordingLimit) const;

  // Empties every team and every slot.
  void Clear();

 private:
  std::array<TeamSeasonLines, kMaxTeams + 1> teams_;
};

}  // namespace courtmere
