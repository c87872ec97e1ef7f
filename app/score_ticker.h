// frmMessageGames: the score ticker of a game batch. Each game of the batch
// that ends adds its line, the winner first, and the ticker waits as long as
// the option "Set Score Ticker Speed" asks before the next game is played.
// Skip ends the waiting for the rest of the running flow: the batch, or the
// whole auto-sim, plays on without pauses.
#pragma once

#include <QDialog>
#include <functional>
#include <string>

#include "season/season_observer.h"

class QEventLoop;
class QListWidget;
class QPushButton;

namespace courtmere::app {

class ScoreTicker : public QDialog, public courtmere::SeasonObserver {
  Q_OBJECT

 public:
  // `openBracket` shows a tournament's bracket: ("Preseason", name) or
  // ("Conference", name); `openTestScores` the recruits' test scores.
  ScoreTicker(std::function<void(const std::string&, const std::string&)> openBracket,
              std::function<void()> openTestScores, QWidget* parent = nullptr);

  QListWidget* Lines() const { return lines_; }
  QPushButton* SkipButton() const { return skip_; }
  // Empties the ticker for the next flow, and waits again.
  void Clear();
  // The user's school: its games stand out in bold.
  void SetUserSchool(std::string school) { userSchool_ = std::move(school); }
  // While the auto-sim runs the ticker pauses only after the user's games.
  void SetAutoSim(bool running) { autoSim_ = running; }
  // Skip: no more pauses until the next flow.
  void Skip();
  bool Skipping() const { return skipping_; }

  void GameResult(const std::string& winner, int winnerScore, const std::string& loser,
                  int loserScore) override;
  void Wait(double seconds) override;
  void ShowPreseasonBracket(const std::string& tournament) override;
  void ShowConferenceBracket(const std::string& conference) override;
  void ShowTestScores() override { openTestScores_(); }

  // The line of a result: "Duke 78, 3. Kansas 70".
  static QString ResultLine(const std::string& winner, int winnerScore, const std::string& loser,
                            int loserScore);

 private:
  bool IsUserSchool(const std::string& shown) const;

  std::function<void(const std::string&, const std::string&)> openBracket_;
  std::function<void()> openTestScores_;
  QListWidget* lines_;
  QPushButton* skip_;
  QEventLoop* waiting_ = nullptr;  // the pause under way, if any
  std::string userSchool_;
  bool autoSim_ = false;
  bool skipping_ = false;
  bool lastWasUsers_ = false;  // the newest result is a game of the user's school
};

}  // namespace courtmere::app
