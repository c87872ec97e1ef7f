#include "screens/coach_review.h"

#include <fmt/format.h>

#include "career/career_row.h"

namespace courtmere {

namespace {

constexpr const char* kTwoStrikes = "Two Strikes, one more and you are out!";
constexpr const char* kSatisfied = "Satisfied with your performance";
constexpr const char* kLosingPatience = "Happy, but losing patience";

std::string Record(int wins, int losses) {
  return fmt::format("{}-{}", wins, losses);
}

// The most demanding board counts from two strikes, the next from three,
// the others from four.
std::string EliteMood(int s, double c) {
  if (s > 1 && c < 0) return kTwoStrikes;
  if (s > 1 && c > 0) return "You need to keep winning, or its the door.";
  if (s > 0 && c < 0) return "The Board is losing patience";
  if (s > 0 && c > 0) return "Like the direction of the team, but need results";
  if (s == 0) return kSatisfied;
  return "";
}

std::string PatientMood(int s, double c, int limit, const char* otherwise) {
  if (s > limit && c < 0) return kTwoStrikes;
  if (s > limit && c > 0) return kLosingPatience;
  if (s == 0) return kSatisfied;
  if (s < limit + 1) return otherwise;
  return "";
}

}  // namespace

std::string CoachRatingLetter(double rating) {
  if (rating > 75) return "A";
  if (rating > 60) return "B";
  if (rating > 35) return "C";
  if (rating > 10) return "D";
  return "F";
}

std::string JobPerformance(int e, int s, double c) {
  if (e == 1) return EliteMood(s, c);
  if (e == 2) return PatientMood(s, c, 2, "Like the direction of the team, but need results");
  if (e > 2) return PatientMood(s, c, 3, "The board is patient, for now");
  return "";
}

CoachReview LoadCoachReview(Store& store) {
  const CareerRow c = ReadCareer(store);
  CoachReview review;
  review.Caption = c.School() + " Head Coach Review";
  const int games = c.Wins + c.Losses;
  const double fraction = games > 0 ? static_cast<double>(c.Wins) / games : 0;
  review.Fields = {
      {"Name:", c.Name},
      {"Team:", c.Team},
      {"Seasons:", std::to_string(c.Seasons)},
      {"Overall Record:", fmt::format("{} ({:.3f})", Record(c.Wins, c.Losses), fraction)},
      {"Conf. Championships:", std::to_string(c.ConfChamps)},
      {"NCT Apps:", std::to_string(c.NCTApps)},
      {"NCT Record:", Record(c.NCTWins, c.NCTLosses)},
      {"NCT Final Fours:", std::to_string(c.NCTFinalFour)},
      {"NCT Championships:", std::to_string(c.NCTChamps)},
      {"ACT Apps:", std::to_string(c.ACTApps)},
      {"ACT Record:", Record(c.ACTWins, c.ACTLosses)},
      {"ACT Final Fours:", std::to_string(c.ACTFinalFour)},
      {"ACT Championships:", std::to_string(c.ACTChamps)},
      {"First Round Picks:", std::to_string(c.FirstRound)},
      {"Coach Rating:", CoachRatingLetter(c.Rating)},
      {"Job Performance:", JobPerformance(c.Expectations, c.Strikes, c.PrestigeChange)},
  };
  return review;
}

}  // namespace courtmere
