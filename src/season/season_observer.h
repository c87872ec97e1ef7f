// What the desktop program shows while the season runs: the score ticker of
// a game batch and the screens the day step opens. Headless runs have no
// observer, and then nothing waits.
#pragma once

#include <string>

namespace courtmere {

class SeasonObserver {
 public:
  virtual ~SeasonObserver() = default;

  // The ticker: a game of the batch has ended. The names carry the poll
  // rank ("3. Duke") when the team stands in the top 25.
  virtual void GameResult(const std::string& winner, int winnerScore, const std::string& loser,
                          int loserScore) = 0;
  // Waits `seconds` of wall-clock time between two games of the ticker,
  // letting the window system run.
  virtual void Wait(double seconds) = 0;
  // The bracket of a preseason tournament after a day of week 1.
  virtual void ShowPreseasonBracket(const std::string& tournament) = 0;
  // The bracket of the user's conference tournament, drawn at the end of
  // week 15.
  virtual void ShowConferenceBracket(const std::string& conference) = 0;
  // The recruits' academic test has been given (week 10): the list of the
  // scores opens.
  virtual void ShowTestScores() {}
};

}  // namespace courtmere
