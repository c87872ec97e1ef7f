// Signed recruits become players; what stays of the recruiting year.
#include "offseason/signed_recruits.h"

#include <gtest/gtest.h>

#include "league/dynasty_fixture.h"
#include "people/player_writer.h"

namespace courtmere::testing {
namespace {

TEST(SignedRecruitsToPlayers, SigningsJoinAndOnlyTheWaitingJuniorCollegeManStays) {
  BlankProgram program(3);
  Store& store = program.store();
  store.Exec("INSERT INTO Team (SchoolName, Owner) VALUES ('Home U', 'Human')");
  struct Row {
    int id;
    const char* year;
    const char* choice;
    int inEligible;
  };
  const Row rows[] = {
      {1, "Recruit", "Home U", 0},    // signed: a Freshman
      {2, "JCRecruit", "Home U", 0},  // signed: a Junior
      {3, "Recruit", "", 0},          // unsigned: gone
      {4, "JCRecruit", "", 2007},     // sits out a year: keeps his rows as 'JC'
      {5, "Recruit", "NBA", 1},       // went for the draft
  };
  for (const Row& r : rows) {
    Player p;
    p.Id = r.id;
    p.PlayerYear = r.year;
    p.Team = "East";
    AddPlayer(store, p);
    store.Exec("INSERT INTO Recruit (Id, TeamChoice, InEligible) VALUES (?, ?, ?)", r.id, r.choice,
               r.inEligible);
  }
  store.Exec("UPDATE Player SET PlayerYear = 'Recruit' WHERE Id = 4");
  store.Exec("INSERT INTO RecruitDecision (Id, Team, PlayerID) VALUES (1, 'Home U', 1)");
  SignedRecruitsToPlayers(program.session());

  auto text = [&](const char* sql, int id) { return store.ScalarText(sql, id).value_or("-"); };
  EXPECT_EQ(text("SELECT PlayerYear || ' ' || Team FROM Player WHERE Id = ?", 1),
            "Freshman Home U");
  EXPECT_EQ(text("SELECT PlayerYear || ' ' || Team FROM Player WHERE Id = ?", 2), "Junior Home U");
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM PlayerStats WHERE Id IN (1, 2)"), 2);
  EXPECT_EQ(text("SELECT PlayerYear FROM Player WHERE Id = ?", 3), "-");
  EXPECT_EQ(text("SELECT PlayerYear FROM Player WHERE Id = ?", 4), "JC");
  EXPECT_EQ(store.ScalarInt("SELECT InEligible FROM Recruit WHERE Id = 4"), 2007);
  EXPECT_EQ(store.ScalarInt("SELECT group_concat(Id) FROM Recruit"), 4);
  EXPECT_EQ(store.ScalarInt("SELECT count(*) FROM RecruitDecision"), 0);
}

}  // namespace
}  // namespace courtmere::testing
