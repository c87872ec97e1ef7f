// The user's training screen (frmTrainPlayer): his players by position, and
// for the one chosen his 13 lists of training points, the points remaining
// of 65, Reset to 5 in every list, and Submit, which writes the regimen only
// when exactly 65 points are spread.
#pragma once

#include <string>
#include <vector>

#include "offseason/training_table.h"

namespace courtmere {

class Store;

struct TrainingPlayer {
  int Id = 0;
  std::string Name;
  int PlayerPosition = 0;
  std::string PlayerYear;
  double GPA = 0;
  // The nine grades in the screen's order: Athletic, Scoring, Shooting,
  // Outside, Rebounding, Per. Defense, Post Defense, Handling, Passing.
  std::vector<std::string> grades;
  TrainingRow points{};  // his row, or 5 in each list
};

// The user's players in position order, each with his regimen.
std::vector<TrainingPlayer> TrainingRoster(Store& store, const std::string& school);

// "TRAINING POINTS REMAINING:" shows this number.
int TrainingPointsRemaining(const TrainingRow& row);

struct TrainingSubmit {
  bool saved = false;
  std::string message;  // the refusal, or the confirmation
};

// Submit: refuses a negative and a positive remainder, a list outside 0 to
// 10 and a player not on the school; otherwise writes his row.
TrainingSubmit SubmitTraining(Store& store, const std::string& school, int playerId,
                              const TrainingRow& row);

}  // namespace courtmere
