// frmCoachReview, "<school> Head Coach Review": the user's career as the
// board sees it, field by field, with his rating as a letter and the board's
// mood as a line.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace courtmere {

class Store;

struct CoachReview {
  std::string Caption;
  // Each label ("Name:", "Coach Rating:" ...) with its value, in order.
  std::vector<std::pair<std::string, std::string>> Fields;
};

// The rating as a letter: above 75 A, above 60 B, above 35 C, above 10 D,
// else F.
std::string CoachRatingLetter(double rating);

// The board's mood from its expectations, the strikes and the prestige
// change; empty when no line fits.
std::string JobPerformance(int expectations, int strikes, double prestigeChange);

CoachReview LoadCoachReview(Store& store);

}  // namespace courtmere
