// The user's career: his one HeadCoach row, read whole, and the texts that
// tell a fired coach from one in a job.
#pragma once

#include <string>
#include <string_view>

namespace courtmere {

class Store;

// A fired coach's school reads "Fired-<school>" in HeadCoach.Team.
inline constexpr std::string_view kFiredPrefix = "Fired-";

struct CareerRow {
  int Id = 0;
  std::string Name;
  std::string Team;  // the school, or "Fired-<school>"
  int Expectations = 0;
  int Seasons = 0;
  int Wins = 0;
  int Losses = 0;
  int ConfChamps = 0;
  int NCTApps = 0;
  int NCTWins = 0;
  int NCTLosses = 0;
  int NCTFinalFour = 0;
  int NCTChamps = 0;
  int ACTApps = 0;
  int ACTWins = 0;
  int ACTLosses = 0;
  int ACTFinalFour = 0;
  int ACTChamps = 0;
  int FirstRound = 0;
  double PrestigeChange = 0;
  double Rating = 0;
  int Strikes = 0;
  int JobYear = 0;  // the year he took his present job; 0 for his first

  // Whether the board has fired him and he has no school yet.
  bool Fired() const { return Team.rfind("Fired", 0) == 0; }
  // His school, or the school that fired him.
  std::string School() const;
};

// The first HeadCoach row; an empty row (Id 0) when there is none.
CareerRow ReadCareer(Store& store);

}  // namespace courtmere
