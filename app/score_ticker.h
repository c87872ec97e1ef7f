// frmMessageGames: the score ticker of a game batch. Each game of the batch
// that ends adds its line, the winner first, and the ticker waits as long as
// the option "Set Score Ticker Speed" asks before the next game is played.
#pragma once

#include <QDialog>
#include <functional>

#include "season/season_observer.h"

class QListWidget;

namespace courtmere::app {

class ScoreTicker : public QDialog, public courtmere::SeasonObserver {
  Q_OBJECT

 public:
  // `openBracket` shows a tournament's bracket: ("Preseason", name) or
  // ("Conference", name).
  ScoreTicker(std::function<void(const std::string&, const std::string&)> openBracket,
              QWidget* parent = nullptr);

  QListWidget* Lines() const { return lines_; }
  // Empties the ticker for the next batch.
  void Clear();

  void GameResult(const std::string& winner, int winnerScore, const std::string& loser,
                  int loserScore) override;
  void Wait(double seconds) override;
  void ShowPreseasonBracket(const std::string& tournament) override;
  void ShowConferenceBracket(const std::string& conference) override;

  // The line of a result: "Duke 78, 3. Kansas 70".
  static QString ResultLine(const std::string& winner, int winnerScore, const std::string& loser,
                            int loserScore);

 private:
  std::function<void(const std::string&, const std::string&)> openBracket_;
  QListWidget* lines_;
};

}  // namespace courtmere::app
