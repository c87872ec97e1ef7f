#include "career_fixture.h"

#include "store/inbox.h"

namespace courtmere::testing {

CareerFixture::CareerFixture() {
  store().Append("League", {{"Id", int64_t{7}}, {"Conference", "Big East"}});
}

void CareerFixture::AddSchool(const std::string& school, double prestige, int coachRank) {
  league_.AddTeam(school, "East", static_cast<int>(prestige));
  store().Exec("UPDATE Team SET Prestige = ?, Conference = 'Big East' WHERE SchoolName = ?",
               prestige, school);
  store().Append("TeamStats", {{"SchoolName", school}});
  store().Append("Ranking", {{"SchoolName", school}, {"CoachRank", int64_t{coachRank}}});
}

void CareerFixture::HireUser(const std::string& school, int expectations) {
  store().Exec("UPDATE Team SET Owner = 'Human' WHERE SchoolName = ?", school);
  store().Append(
      "HeadCoach",
      {{"Name", "Pat O'Neil"}, {"Team", school}, {"Expectations", int64_t{expectations}}});
  session().humanSchool = school;
}

void CareerFixture::SetCareer(const std::string& assignments) {
  store().Exec("UPDATE HeadCoach SET " + assignments);
}

std::string CareerFixture::Subjects() {
  std::string subjects;
  for (const InboxMessage& m : session().inbox.Messages) subjects += m.Subject + ";";
  return subjects;
}

}  // namespace courtmere::testing
