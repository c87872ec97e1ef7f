// The offseason training regimen: 13 lists of points, 0 to 10 each, that add
// up to 65, one row of TrainPlayer per player who trains. The user fills his
// players' rows on the training screen; the computer fills the others from
// a table by position and the player's study habits.
#pragma once

#include <array>
#include <optional>

namespace courtmere {

class Store;
struct Player;

// The 13 lists in the screen's order.
enum TrainingSkill : int {
  kTrainShooting,
  kTrainInsideScoring,
  kTrainThrees,
  kTrainPerDefense,
  kTrainPostDefense,
  kTrainRebounding,
  kTrainPassing,
  kTrainHandling,
  kTrainJumping,
  kTrainQuickness,
  kTrainStrength,
  kTrainEndurance,
  kTrainSummerSchool,
  kTrainingSkills
};

inline constexpr int kTrainingPoints = 65;
inline constexpr int kMostPointsPerSkill = 10;
// What a list holds when the player has no row, and after Reset.
inline constexpr int kDefaultPoints = 5;

struct TrainingSkillName {
  const char* label;   // the screen's caption
  const char* column;  // TrainPlayer's column
};
extern const std::array<TrainingSkillName, kTrainingSkills> kTrainingSkillNames;

using TrainingRow = std::array<int, kTrainingSkills>;

// A row of 5 in every list.
TrainingRow DefaultTrainingRow();
int TrainingPointsUsed(const TrainingRow& row);

// The player's TrainPlayer row, if he has one.
std::optional<TrainingRow> LoadTrainingRow(Store& store, int playerId);
// Writes the player's row, replacing any he had.
void SaveTrainingRow(Store& store, int playerId, const TrainingRow& row);

// The computer's regimen for a player: summer school by Intelligence, the
// skills by position, endurance making up the rest.
TrainingRow ComputerTrainingRow(int position, int intelligence);

// Writes the computer's regimen as the player's row.
void SetTrainingPoints(Store& store, const Player& player);

// Rows for every player of the computer's schools and every junior-college
// prospect; the user's players keep the rows he set.
void TrainCPUPlayers(Store& store);

}  // namespace courtmere
