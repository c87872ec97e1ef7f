#include "recruiting/test_scores.h"

#include "platform/rng.h"
#include "recruiting/scout_letters.h"
#include "store/session.h"

namespace courtmere {

int TestScore(Rng& rng, int intelligence) {
  if (intelligence <= 15) return intelligence;
  return rng.IntRnd(10, 1) > 5 ? intelligence + 15 : intelligence - 15;
}

void GiveRecruitTest(Session& session) {
  Store& store = session.Db();
  struct Taker {
    int id, intelligence;
  };
  std::vector<Taker> takers;
  for (Rows r = store.Query(
           "SELECT Recruit.Id, Intelligence FROM Player, Recruit WHERE Recruit.Id = Player.Id AND "
           "InEligible = 0 AND Recruit.GPA < 2 AND NBAFlag = 0 ORDER BY TestScore DESC, "
           "Recruit.Id");
       r.Next();) {
    takers.push_back({r.Int(0), r.Int(1)});
  }
  for (const Taker& t : takers) {
    const int score = TestScore(session.rng, t.intelligence);
    if (score < kPassingScore) {
      store.Exec(
          "UPDATE Recruit SET InEligible = ?, ScoutingReport = coalesce(ScoutingReport, '') || "
          "' He failed to qualify academically for Division I schools.' WHERE Id = ?",
          session.config.CurrYear + 2, t.id);
    }
    store.Exec("UPDATE Recruit SET TestScore = ? WHERE Id = ?", score, t.id);
  }
  SendRecruitingLetter(session, "Compliance Dir", "Recruit Test Scores",
                       "We have received a list of each low GPA recruit's final test scores. To "
                       "view them, select News and Recruit Test Scores from the main menu.");
}

std::vector<TestScoreRow> RecruitTestScores(Session& session) {
  std::vector<TestScoreRow> rows;
  for (Rows r = session.Db().Query(
           "SELECT Name, TestScore FROM Player, Recruit WHERE Recruit.Id = Player.Id AND "
           "TestScore > 0 ORDER BY TestScore DESC, Recruit.Id");
       r.Next();) {
    const int score = r.Int(1);
    rows.push_back({r.Text(0), score, score >= kPassingScore ? "Pass" : "Fail"});
  }
  return rows;
}

}  // namespace courtmere
