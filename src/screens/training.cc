#include "screens/training.h"

#include "store/store.h"

namespace courtmere {

std::vector<TrainingPlayer> TrainingRoster(Store& store, const std::string& school) {
  std::vector<TrainingPlayer> list;
  for (Rows r = store.Query(
           "SELECT Id, Name, PlayerPosition, PlayerYear, GPA, AthleticGrade, ScoreGrade, "
           "ShootingGrade, OutsideShootGrade, ReboundGrade, PerrDefenseGrade, PostDefenseGrade, "
           "HandlingGrade, PassingGrade FROM Player WHERE Team = ? ORDER BY PlayerPosition, Id",
           school);
       r.Next();) {
    TrainingPlayer p;
    p.Id = r.Int(0);
    p.Name = r.Text(1);
    p.PlayerPosition = r.Int(2);
    p.PlayerYear = r.Text(3);
    p.GPA = r.Double(4);
    for (int c = 5; c <= 13; ++c) p.grades.push_back(r.Text(c));
    list.push_back(std::move(p));
  }
  for (TrainingPlayer& p : list)
    p.points = LoadTrainingRow(store, p.Id).value_or(DefaultTrainingRow());
  return list;
}

int TrainingPointsRemaining(const TrainingRow& row) {
  return kTrainingPoints - TrainingPointsUsed(row);
}

TrainingSubmit SubmitTraining(Store& store, const std::string& school, int playerId,
                              const TrainingRow& row) {
  const auto name =
      store.ScalarText("SELECT Name FROM Player WHERE Id = ? AND Team = ?", playerId, school);
  if (!name) return {false, "Player " + std::to_string(playerId) + " is not on your team."};
  for (int points : row) {
    // The screen's lists offer 0 to 10 only; a typed value outside them is
    // refused the same way.
    if (points < 0 || points > kMostPointsPerSkill) {
      return {false, "Each training list holds 0 to 10 points."};
    }
  }
  const int remaining = TrainingPointsRemaining(row);
  if (remaining < 0) {
    return {false,
            "You have used too many training points for this player. Please adjust the player's "
            "offseason regimen to where the remaining points are zero."};
  }
  if (remaining > 0) {
    return {false,
            "You still have remaining training points for this player. Please adjust the player's "
            "offseason regimen to where the remaining points are zero."};
  }
  SaveTrainingRow(store, playerId, row);
  return {true, "Training settings for " + *name + " have been updated."};
}

}  // namespace courtmere
