#include "recruiting/signing.h"

#include <unordered_map>

#include "people/player_creation.h"
#include "people/recruit_pool.h"
#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kMostWalkOns = 5;

std::vector<SigningSchool> LoadSchools(Store& store, int withScholarship) {
  std::vector<SigningSchool> schools;
  for (Rows r = store.Query(
           "SELECT SchoolName, Scholarships, Region, Prestige, TopPG, TopSG, TopSF, TopPF, TopC, "
           "Owner, (SELECT count(Id) FROM Recruit WHERE TeamChoice = SchoolName) FROM Team WHERE "
           "SchoolName IS NOT NULL ORDER BY Prestige DESC, rowid");
       r.Next();) {
    SigningSchool s;
    s.name = r.Text(0);
    s.left = r.Int(1) - (withScholarship == 1 ? 0 : r.Int(10));
    s.region = r.Text(2);
    s.prestige = r.Double(3);
    for (int p = 1; p <= 5; ++p) s.top[p] = r.Int(3 + p);
    s.user = r.Text(9) == "Human";
    schools.push_back(std::move(s));
  }
  return schools;
}

struct Pool {
  std::vector<SigningRecruit> recruits;
  std::unordered_map<int, bool> signed_;
};

Pool LoadRecruits(Store& store, int year) {
  Pool pool;
  for (Rows r = store.Query(
           "SELECT Recruit.Id, PlayerPosition, RecruitType, Recruit.Region, Homesick, Team1, "
           "Team2, Team3, TeamChoice FROM Recruit, Player WHERE Recruit.Id = Player.Id AND "
           "(InEligible = ? OR InEligible = 0) ORDER BY Player.Overall DESC, Recruit.Id",
           year);
       r.Next();) {
    pool.recruits.push_back(
        {r.Int(0), r.Int(1), r.Text(2), r.Text(3), r.Int(4), r.Text(5), r.Text(6), r.Text(7)});
    pool.signed_[r.Int(0)] = !r.IsNull(8);
  }
  return pool;
}

// Every bid of the run by recruit, lowest points first (the earlier row
// first among equal points).
std::unordered_map<int, std::vector<Bid>> LoadBids(Store& store, int withScholarship) {
  std::unordered_map<int, std::vector<Bid>> bids;
  for (Rows r = store.Query(
           "SELECT PlayerID, Team, RecruitPoints FROM RecruitDecision WHERE Scholarship = ? AND "
           "PlayerID <> 0 ORDER BY RecruitPoints, Id",
           withScholarship);
       r.Next();) {
    bids[r.Int(0)].push_back({r.Text(1), r.Int(2)});
  }
  return bids;
}

SigningSchool* Find(std::vector<SigningSchool>& schools, const std::string& name) {
  for (SigningSchool& s : schools) {
    if (s.name == name) return &s;
  }
  return nullptr;
}

bool HasRoom(const SigningSchool* s) {
  return s != nullptr && s->left > 0;
}

void Sign(Store& store, int recruit, SigningSchool& school, bool withSentence) {
  if (withSentence) {
    store.Exec(
        "UPDATE Recruit SET TeamChoice = ?, ScoutingReport = coalesce(ScoutingReport, '') || ? "
        "WHERE Id = ?",
        school.name, " He has signed with " + school.name + ".", recruit);
  } else {
    store.Exec("UPDATE Recruit SET TeamChoice = ? WHERE Id = ?", school.name, recruit);
  }
  --school.left;
}

// The second run's leftovers go to the most prestigious school with room;
// false when the schools ran out of scholarships first.
bool PlaceLeftovers(Store& store, int year, std::vector<SigningSchool>& schools) {
  std::vector<int> left;
  for (Rows r = store.Query(
           "SELECT Recruit.Id FROM Recruit, Player WHERE TeamChoice IS NULL AND (InEligible = ? "
           "OR InEligible = 0) AND Recruit.Id = Player.Id ORDER BY Overall DESC, Recruit.Id",
           year);
       r.Next();) {
    left.push_back(r.Int(0));
  }
  for (int id : left) {
    SigningSchool* school = nullptr;
    for (SigningSchool& s : schools) {
      if (s.left > 0) {
        school = &s;
        break;
      }
    }
    if (school == nullptr) return false;
    Sign(store, id, *school, true);
  }
  return true;
}

// A new recruit of `school`'s region, drawn at quality 25, for each
// scholarship it has left (at most five), signed without a word in his
// report.
void SignWalkOns(Session& session, std::vector<SigningSchool>& schools) {
  Store& store = session.Db();
  const int year = session.config.CurrYear;
  PlayerBatch batch = PlayerBatch::Begin(session);
  batch.recruitInterest = RecruitInterestFromStore();
  for (SigningSchool& school : schools) {
    for (int i = 0; i < kMostWalkOns && school.left > 0; ++i) {
      bool full = true;
      for (int p = 1; p <= 5; ++p) full = full && batch.positions[p] >= 1;
      if (full) batch.positions.Clear();
      CreatePlayers(session, batch, school.region, school.region, 25, 1, 0, 1);
      const std::optional<int64_t> id = store.ScalarInt(
          "SELECT Id FROM Recruit WHERE Region = ? AND TeamChoice IS NULL AND (InEligible = ? OR "
          "InEligible = 0) ORDER BY Id",
          school.region, year);
      if (!id) break;
      Sign(store, static_cast<int>(*id), school, false);
    }
  }
  batch.Save(session);
}

}  // namespace

bool StaysInRunning(const SigningRecruit& r, const SigningSchool& school) {
  if (school.left <= 0) return false;
  if (school.name == r.team1 || school.name == r.team2 || school.name == r.team3) return true;
  if (r.recruitType == "Exc") return !school.user || school.prestige >= 60;
  if (r.recruitType == "Good") return !school.user || school.prestige >= 45;
  return false;
}

int BidScore(const SigningRecruit& r, const SigningSchool& school, int points) {
  int bonus = 0;
  if (school.name == r.team1) {
    bonus = 90;
  } else if (school.name == r.team2) {
    bonus = 60;
  } else if (school.name == r.team3) {
    bonus = 30;
  }
  if (r.homesick > 70) bonus += school.region == r.region ? 15 : -15;
  const int top = r.position >= 1 && r.position <= 5 ? school.top[r.position] : 0;
  const int score = CInt(points - top + bonus + school.prestige);
  return score <= 0 ? 5 : score;
}

SigningSchool* ChooseSchool(const SigningRecruit& r, const std::vector<Bid>& bids,
                            std::vector<SigningSchool>& schools) {
  SigningSchool* best = nullptr;
  int bestScore = 0;
  for (const Bid& bid : bids) {
    SigningSchool* school = Find(schools, bid.team);
    if (school == nullptr || !StaysInRunning(r, *school)) continue;
    const int score = BidScore(r, *school, bid.points);
    if (best == nullptr || score > bestScore) {
      best = school;
      bestScore = score;
    }
  }
  if (best != nullptr) return best;
  for (const std::string* name : {&r.team1, &r.team2, &r.team3}) {
    SigningSchool* school = Find(schools, *name);
    if (HasRoom(school)) return school;
  }
  return nullptr;
}

void SignRecruits(Session& session, int withScholarship) {
  Store& store = session.Db();
  const int year = session.config.CurrYear;
  std::vector<SigningSchool> schools = LoadSchools(store, withScholarship);
  Pool pool = LoadRecruits(store, year);
  const auto bids = LoadBids(store, withScholarship);
  for (const SigningRecruit& r : pool.recruits) {
    if (pool.signed_[r.id]) continue;
    const auto found = bids.find(r.id);
    if (found == bids.end()) continue;
    if (SigningSchool* school = ChooseSchool(r, found->second, schools)) {
      Sign(store, r.id, *school, true);
    }
  }
  if (withScholarship == 1) return;
  if (PlaceLeftovers(store, year, schools)) SignWalkOns(session, schools);
  store.Exec(
      "UPDATE Player SET PlayerYear = 'JCRecruit' WHERE PlayerYear = 'JC' AND Id IN (SELECT Id "
      "FROM Recruit WHERE InEligible = ?)",
      year + 1);
}

void SignAllRecruits(Session& session) {
  SignRecruits(session, 1);
  SignRecruits(session, 0);
}

}  // namespace courtmere
