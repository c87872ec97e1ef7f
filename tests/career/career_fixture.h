// A small league for the career's tests: schools of given prestige, each
// with its TeamStats and Ranking rows, a conference with its league, and the
// user's HeadCoach row at one of them.
#pragma once

#include <string>

#include "career/career_row.h"
#include "people/league_fixture.h"

namespace courtmere::testing {

class CareerFixture {
 public:
  CareerFixture();

  Session& session() { return league_.session(); }
  Store& store() { return league_.store(); }
  ScriptedUi& ui() { return league_.ui(); }
  LeagueFixture& league() { return league_; }

  // A school of the one conference, with its standing rows.
  void AddSchool(const std::string& school, double prestige, int coachRank = 0);
  // The user's row at `school` (Owner "Human").
  void HireUser(const std::string& school, int expectations);
  // Sets columns of the user's row.
  void SetCareer(const std::string& assignments);
  CareerRow Career() { return ReadCareer(store()); }
  // The subjects of the inbox's letters, in order.
  std::string Subjects();

 private:
  LeagueFixture league_;
};

}  // namespace courtmere::testing
