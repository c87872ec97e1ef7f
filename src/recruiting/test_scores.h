// The academic test of week 10: every eligible recruit with a GPA below 2
// sits it. A score below 50 fails him: he cannot sign with a Division I
// school until two years on (InEligible), and his report says so.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Rng;
struct Session;

inline constexpr int kPassingScore = 50;

// A recruit's score: his Intelligence, 15 up or down at even odds when it is
// above 15.
int TestScore(Rng& rng, int intelligence);

// Gives the test, and sends the compliance director's letter.
void GiveRecruitTest(Session& session);

struct TestScoreRow {
  std::string Name;
  int Score = 0;
  std::string Result;  // "Pass" or "Fail"
};

inline constexpr const char* kTestScoresTitle = "College Testing Scores for Non-GPA qualifiers";

// The scores given, best first (News > Recruit Test Scores).
std::vector<TestScoreRow> RecruitTestScores(Session& session);

}  // namespace courtmere
