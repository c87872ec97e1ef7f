#include "people/recruit_pool.h"

#include <array>
#include <memory>
#include <string_view>

#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr int kPositionRanks = 15;
constexpr int kTopRanks = 50;

// The three slots of an interest list, filled in order, a school at most once.
class InterestList {
 public:
  explicit InterestList(Recruit& recruit) : slots_{&recruit.Team1, &recruit.Team2, &recruit.Team3} {
    for (std::string* slot : slots_) slot->clear();
  }
  bool Full() const { return filled_ == 3; }
  bool Has(const std::string& school) const {
    for (int i = 0; i < filled_; ++i) {
      if (*slots_[i] == school) return true;
    }
    return false;
  }
  void Add(const std::string& school) {
    if (Full() || Has(school)) return;
    *slots_[filled_++] = school;
  }

 private:
  std::array<std::string*, 3> slots_;
  int filled_ = 0;
};

// What one recruit brings to the passes, and the counter N that grows
// through passes 1 to 3 as he meets schools near home.
struct Wishes {
  int H;  // Homesick
  int W;  // PlayWinner
  double O;
  std::string state;  // the last two characters of his HomeTown
  std::string area;
  std::string region;
  int N = 0;
};

bool Same(const std::string& a, const std::string& b) {
  return !a.empty() && a == b;
}

// Int(Rnd * 100 + N + 10) > limit.
bool NearHomeDraw(Rng& rng, const Wishes& w, int limit) {
  return Int(rng.Rnd() * 100 + w.N + 10) > limit;
}

void PassOne(Rng& rng, const InterestSchool& s, Wishes& w, InterestList& list) {
  if (w.W > 75 && w.H < 30 && w.O > 75 && Int(rng.Rnd() * 10 + 1) > 7) {
    list.Add(s.SchoolName);
  } else if (Same(s.State, w.state)) {
    w.N += 3;
    if ((w.H > 55 && NearHomeDraw(rng, w, 70)) || (w.H > 45 && NearHomeDraw(rng, w, 80))) {
      list.Add(s.SchoolName);
    }
  } else if (Same(s.Area, w.area)) {
    w.N += 3;
    if ((w.H > 65 && NearHomeDraw(rng, w, 80)) || (w.H > 50 && NearHomeDraw(rng, w, 85))) {
      list.Add(s.SchoolName);
    }
  }
}

void PassTwo(Rng& rng, const InterestSchool& s, Wishes& w, InterestList& list) {
  bool add = false;
  if (w.W > 85) {
    add = Int(rng.Rnd() * 100 + 1) > 75;
  } else if (w.W >= 50) {
    if (Same(s.State, w.state)) {
      w.N += 1;
      add = NearHomeDraw(rng, w, 70);
    } else if (Same(s.Area, w.area)) {
      w.N += 1;
      add = NearHomeDraw(rng, w, 75);
    } else if (Same(s.Region, w.region)) {
      add = Int(rng.Rnd() * 100 + 1) > 80;
    }
  } else if (w.W >= 31 && w.H > 35 && Same(s.Region, w.region)) {
    add = Int(rng.Rnd() * 100 + 1) > 70;
  }
  if (add) list.Add(s.SchoolName);
}

void PassThree(Rng& rng, const InterestSchool& s, Wishes& w, InterestList& list) {
  if (!Same(s.Region, w.region)) return;
  w.N += 1;
  if (Int(rng.Rnd() * 50 + w.N) > 50) list.Add(s.SchoolName);
}

// Design decision: when the last pass reaches the top of the table with a
// slot still free, it starts again from the bottom and keeps counting, so the
// draw only gets easier; it stops once every school is on the list.
void PassFour(Rng& rng, const std::vector<InterestSchool>& schools, InterestList& list) {
  const int n = static_cast<int>(schools.size());
  const int most = n < 3 ? n : 3;
  int listed = 0;
  for (const InterestSchool& s : schools) listed += list.Has(s.SchoolName) ? 1 : 0;
  for (int i = 1; !list.Full() && listed < most; ++i) {
    const InterestSchool& s = schools[n - 1 - (i - 1) % n];
    if (Int(rng.Rnd() * 20 + i) > 50 && !list.Has(s.SchoolName)) {
      list.Add(s.SchoolName);
      ++listed;
    }
  }
}

struct RankRow {
  int id;
  double overall;
  int potential;
};

int64_t CurrentYear(Store& store) {
  return LoadConfig(store).CurrYear;
}

// Gives the first `count` recruits that the query returns, best first, the
// ranks 1 to `count` in `column`.
template <class... Args>
void WriteRanks(Store& store, const char* column, int count, std::string_view sql,
                const Args&... args) {
  std::vector<int> ids;
  for (Rows rows = store.Query(sql, args...);
       rows.Next() && static_cast<int>(ids.size()) < count;) {
    ids.push_back(rows.Int(0));
  }
  const std::string update = std::string("UPDATE Recruit SET ") + column + " = ? WHERE Id = ?";
  for (size_t i = 0; i < ids.size(); ++i) store.Exec(update, static_cast<int>(i + 1), ids[i]);
}

}  // namespace

double DrawRankPoints(Rng& rng, double overall, int potential) {
  const int d1 = Int(rng.Rnd() * 10 + 1) > 5 ? Int(rng.Rnd() * 10 + 5) : -Int(rng.Rnd() * 10 + 5);
  const int d2 = Int(rng.Rnd() * 10 + 1) > 5 ? Int(rng.Rnd() * 15 + 5) : -Int(rng.Rnd() * 15 + 5);
  const double a = overall + d1;
  const double b = potential + d2;
  return Round(0.5 * b + 0.5 * a, 2);
}

std::vector<InterestSchool> LoadInterestSchools(Store& store) {
  std::vector<InterestSchool> schools;
  // Design decision: schools of equal prestige stand in the order of their names.
  for (Rows rows = store.Query("SELECT SchoolName, State, Area, Region, Prestige FROM Team "
                               "ORDER BY Prestige DESC, SchoolName ASC");
       rows.Next();) {
    schools.push_back({rows.Text(0), rows.Text(1), rows.Text(2), rows.Text(3), rows.Double(4)});
  }
  return schools;
}

void SetRecruitInterest(Rng& rng, const std::vector<InterestSchool>& schools, Recruit& recruit,
                        const Player& player) {
  InterestList list(recruit);
  const std::string& home = player.HomeTown;
  Wishes w{player.Homesick, player.PlayWinner,
           player.Overall,  home.size() >= 2 ? home.substr(home.size() - 2) : std::string(),
           recruit.Area,    recruit.Region};
  for (const InterestSchool& s : schools) {
    if (list.Full()) return;
    PassOne(rng, s, w, list);
  }
  for (const InterestSchool& s : schools) {
    if (list.Full()) return;
    PassTwo(rng, s, w, list);
  }
  for (const InterestSchool& s : schools) {
    if (list.Full()) return;
    PassThree(rng, s, w, list);
  }
  PassFour(rng, schools, list);
}

RecruitInterestHook RecruitInterestFromStore() {
  auto schools = std::make_shared<std::vector<InterestSchool>>();
  auto loaded = std::make_shared<bool>(false);
  return [schools, loaded](Session& session, Recruit& recruit, const Player& player) {
    if (!*loaded) {
      *schools = LoadInterestSchools(session.Db());
      *loaded = true;
    }
    SetRecruitInterest(session.rng, *schools, recruit, player);
  };
}

void RankRecruitsByPosition(Session& session, int position) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  const int64_t year = CurrentYear(store);
  std::vector<RankRow> recruits;
  for (Rows rows = store.Query(
           "SELECT Recruit.Id, Player.Overall, Player.Potential FROM Recruit JOIN Player ON "
           "Player.Id = Recruit.Id WHERE Player.PlayerPosition = ? AND (Recruit.InEligible = 0 "
           "OR Recruit.InEligible = ?) ORDER BY Recruit.Id",
           position, year);
       rows.Next();) {
    recruits.push_back({rows.Int(0), rows.Double(1), rows.Int(2)});
  }
  for (const RankRow& r : recruits) {
    store.Exec("UPDATE Recruit SET RankPoints = ? WHERE Id = ?",
               DrawRankPoints(session.rng, r.overall, r.potential), r.id);
  }
  // Design decision: recruits level on RankPoints are ranked by Id.
  WriteRanks(store, "PosRank", kPositionRanks,
             "SELECT Recruit.Id FROM Recruit JOIN Player ON Player.Id = Recruit.Id WHERE "
             "Player.PlayerPosition = ? AND (Recruit.InEligible = 0 OR Recruit.InEligible = ?) "
             "ORDER BY Recruit.RankPoints DESC, Recruit.Id",
             position, year);
  tx.Commit();
}

// The top 50 takes the RankPoints of the last ranking by position as they
// stand, so the two lists agree on the order of any two recruits.
void RankTop50Recruits(Session& session) {
  Store& store = session.Db();
  Store::Transaction tx(store);
  WriteRanks(store, "Top50Rank", kTopRanks,
             "SELECT Id FROM Recruit WHERE InEligible = 0 OR InEligible = ? "
             "ORDER BY RankPoints DESC, Id",
             CurrentYear(store));
  tx.Commit();
}

void RankRecruitPool(Session& session) {
  for (int position = kPG; position <= kC; ++position) RankRecruitsByPosition(session, position);
  RankTop50Recruits(session);
}

}  // namespace courtmere
