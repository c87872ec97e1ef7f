#include "career/head_coach_review.h"

#include <algorithm>

#include "career/career_row.h"
#include "career/fire_head_coach.h"
#include "store/inbox.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kSchoolInterest =
    "Some schools may have contacted you in regards to switching jobs. You can see if anyone has "
    "interest in your employment by selecting the Check Job Openings option under Progress.";

}  // namespace

double CoachRatingOf(const CareerRow& c) {
  const double seasons = c.Seasons;
  // Design decision: a career with seasons but no game counted (a row of an
  // old save) rates its winning as 0 rather than failing on the division.
  const int games = c.Wins + c.Losses;
  double rating = (games > 0 ? static_cast<double>(c.Wins) / games * 45 : 0) +
                  c.NCTApps / seasons * 10 + c.NCTChamps / seasons * 35 +
                  c.ConfChamps / seasons * 20 + c.FirstRound * 5 + c.PrestigeChange * 5;
  if (c.NCTApps > 0) rating += static_cast<double>(c.NCTWins) / c.NCTApps * 5;
  return std::min(rating, 100.0);
}

int StrikesAfter(int strikes, double prestigeChange) {
  if (prestigeChange < 0) return strikes + 1;
  if (prestigeChange > 2 && strikes > 0) return strikes - 1;
  return strikes;
}

bool BoardFires(int expectations, int strikes) {
  if (expectations == 1) return strikes > 2;
  if (expectations == 2) return strikes > 3;
  return expectations > 2 && strikes > 4;
}

void ReviewHeadCoach(Session& session) {
  Store& store = session.Db();
  CareerRow career = ReadCareer(store);
  if (career.Id == 0 || career.Fired()) return;
  Store::Transaction tx(store);
  if (career.Seasons > 0) {
    career.Rating = CoachRatingOf(career);
    career.Strikes = StrikesAfter(career.Strikes, career.PrestigeChange);
    store.Exec("UPDATE HeadCoach SET Rating = ?, Strikes = ? WHERE Id = ?", career.Rating,
               career.Strikes, career.Id);
  }
  if (BoardFires(career.Expectations, career.Strikes)) {
    FireHeadCoach(session, career.Team);
  } else {
    AddInboxMessage(session, "Assistant", "Check School Interest", kSchoolInterest);
  }
  tx.Commit();
}

}  // namespace courtmere
