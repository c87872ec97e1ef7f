#include "offseason/training_table.h"

#include <numeric>
#include <string>
#include <vector>

#include "people/player.h"
#include "store/store.h"

namespace courtmere {

const std::array<TrainingSkillName, kTrainingSkills> kTrainingSkillNames = {{
    {"Shooting", "Shooting"},
    {"Inside Scoring", "InsideScoring"},
    {"Threes", "Threes"},
    {"Per. Defense", "PerDefense"},
    {"Post Defense", "PostDefense"},
    {"Rebounding", "Rebounding"},
    {"Passing", "Passing"},
    {"Handling", "Handling"},
    {"Jumping", "Jumping"},
    {"Quickness", "Quickness"},
    {"Strength", "Strength"},
    {"Endurance", "Endurance"},
    {"Summer School", "SummerSchool"},
}};

namespace {

// The computer's points for the eleven skill lists (Shooting to Strength),
// by position PG, SG, SF, PF, C. Each position's column adds up to 55.
constexpr int kSkillLists = kTrainEndurance;
constexpr int kComputerTable[kSkillLists][5] = {
    {8, 10, 7, 5, 3},   // Shooting
    {2, 4, 5, 9, 8},    // Inside Scoring
    {7, 10, 5, 1, 1},   // Threes
    {8, 7, 6, 2, 1},    // Per. Defense
    {1, 1, 4, 8, 10},   // Post Defense
    {2, 2, 8, 10, 10},  // Rebounding
    {8, 7, 5, 4, 5},    // Passing
    {8, 5, 3, 1, 1},    // Handling
    {2, 2, 7, 7, 5},    // Jumping
    {8, 6, 4, 2, 2},    // Quickness
    {1, 1, 1, 6, 9},    // Strength
};

int SummerSchoolFor(int intelligence) {
  if (intelligence < 40) return 9;
  if (intelligence < 50) return 8;
  if (intelligence < 60) return 7;
  if (intelligence < 70) return 5;
  if (intelligence < 80) return 4;
  return 2;
}

const std::string& ColumnList() {
  static const std::string list = [] {
    std::string s;
    for (const auto& skill : kTrainingSkillNames) s += std::string(", ") + skill.column;
    return s;
  }();
  return list;
}

}  // namespace

TrainingRow DefaultTrainingRow() {
  TrainingRow row;
  row.fill(kDefaultPoints);
  return row;
}

int TrainingPointsUsed(const TrainingRow& row) {
  return std::accumulate(row.begin(), row.end(), 0);
}

std::optional<TrainingRow> LoadTrainingRow(Store& store, int playerId) {
  Rows rows = store.Query("SELECT PlayerId" + ColumnList() + " FROM TrainPlayer WHERE PlayerId = ?",
                          playerId);
  if (!rows.Next()) return std::nullopt;
  TrainingRow row;
  for (int i = 0; i < kTrainingSkills; ++i) row[i] = rows.Int(i + 1);
  return row;
}

void SaveTrainingRow(Store& store, int playerId, const TrainingRow& row) {
  store.Exec("DELETE FROM TrainPlayer WHERE PlayerId = ?", playerId);
  std::vector<Value> values{int64_t{playerId}};
  for (int points : row) values.emplace_back(int64_t{points});
  store.ExecValues("INSERT INTO TrainPlayer (PlayerId" + ColumnList() +
                       ") VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
                   values);
}

TrainingRow ComputerTrainingRow(int position, int intelligence) {
  // A position outside 1 to 5 trains as a centre, as the rest of the game
  // treats it.
  const int column = (position >= kPG && position <= kC ? position : kC) - 1;
  TrainingRow row{};
  row[kTrainSummerSchool] = SummerSchoolFor(intelligence);
  for (int skill = 0; skill < kSkillLists; ++skill) row[skill] = kComputerTable[skill][column];
  row[kTrainEndurance] = 10 - row[kTrainSummerSchool];
  return row;
}

void SetTrainingPoints(Store& store, const Player& player) {
  SaveTrainingRow(store, player.Id,
                  ComputerTrainingRow(player.PlayerPosition, player.Intelligence));
}

void TrainCPUPlayers(Store& store) {
  std::vector<Player> players;
  auto read = [&](Rows rows) {
    while (rows.Next()) {
      Player p;
      p.Id = rows.Int(0);
      p.PlayerPosition = rows.Int(1);
      p.Intelligence = rows.Int(2);
      players.push_back(p);
    }
  };
  // The computer teams' men, then the junior-college prospects.
  read(store.Query(
      "SELECT Player.Id, PlayerPosition, Intelligence FROM Player, Team WHERE Player.Team = "
      "Team.SchoolName AND Team.Owner <> 'Human' ORDER BY Player.Id"));
  read(store.Query(
      "SELECT Id, PlayerPosition, Intelligence FROM Player WHERE PlayerYear = 'JCRecruit' ORDER "
      "BY Id"));
  for (const Player& p : players) SetTrainingPoints(store, p);
}

}  // namespace courtmere
