// frmTrainPlayer (Off Season > Setup Training Schedule): the user's players
// by position; for the one chosen his position, year, grades and GPA, the 13
// lists of training points (0 to 10), "TRAINING POINTS REMAINING:", Reset
// (5 in every list) and Submit, which writes his regimen only when no point
// remains and none is overspent.
#pragma once

#include <array>
#include <vector>

#include "app/screen.h"
#include "screens/training.h"

class QComboBox;
class QLabel;

namespace courtmere::app {

class TrainingScreen : public Screen {
  Q_OBJECT

 public:
  TrainingScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Setup Training Schedule"; }
  QString Key() const override { return "frmTrainPlayer"; }
  void Refresh() override;

  QComboBox* Players() const { return players_; }
  QComboBox* List(int skill) const { return lists_[skill]; }
  QLabel* Remaining() const { return remaining_; }
  void Reset();
  void Submit();

 private:
  void ShowPlayer();
  void UpdateRemaining();
  TrainingRow Points() const;

  std::vector<TrainingPlayer> roster_;
  QComboBox* players_;
  QLabel* details_;
  std::array<QComboBox*, kTrainingSkills> lists_{};
  QLabel* remaining_;
};

}  // namespace courtmere::app
