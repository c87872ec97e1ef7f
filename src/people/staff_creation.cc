#include "people/staff_creation.h"

#include <vector>

#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

struct Span {
  double m;
  double a;
};
// Spans by class, in the order "Exc", "Good", "Average", "Poor".
using ByClass = std::array<Span, 4>;

int Draw(Rng& rng, const ByClass& spans, Quality q) {
  const Span s = spans[static_cast<int>(q)];
  return rng.R(s.m, s.a);
}

constexpr ByClass kSalary = {{{10, 25}, {10, 20}, {10, 15}, {10, 10}}};

struct School {
  std::string name;
  double prestige;
};

// What the common loop needs of one kind of staff.
struct StaffKind {
  const char* table;
  int posts;
  int limit;
  int (*rollSize)(double prestige);
  Quality (*quality)(int x);
  // Draws the ratings and adds the row.
  void (*add)(Session& session, int id, const std::string& name, const std::string& team,
              Quality q);
};

std::vector<School> Schools(Store& store) {
  std::vector<School> schools;
  Rows rows = store.Query("SELECT SchoolName, Prestige FROM Team ORDER BY rowid");
  while (rows.Next()) schools.push_back({rows.Text(0), rows.Double(1)});
  return schools;
}

std::string DrawStaffName(Store& store, Rng& rng, int firstRows, int lastRows) {
  const std::string first = store.FirstName(rng.R(firstRows - 1, 1));
  const std::string last = store.LastName(rng.R(lastRows - 1, 1));
  return first + " " + last;
}

void CreateStaff(Session& session, const StaffKind& kind, int start) {
  Store& store = session.Db();
  Rng& rng = session.rng;
  rng.Reseed();
  int nextId = static_cast<int>(
      store.ScalarInt(std::string("SELECT Max(Id) FROM ") + kind.table).value_or(0) + 1);
  const int firstRows = static_cast<int>(store.RowCount("FName"));
  const int lastRows = static_cast<int>(store.RowCount("LName"));
  const std::vector<School> schools = Schools(store);
  int done = 0;
  for (const School& school : schools) {
    for (int index = start; index < kind.limit; ++index) {
      const std::string name = DrawStaffName(store, rng, firstRows, lastRows);
      const Quality q = kind.quality(rng.R(kind.rollSize(school.prestige), 1));
      const std::string team = index < kind.posts ? school.name : "Looking at " + school.name;
      kind.add(session, nextId++, name, team, q);
    }
    session.ui.SetProgress(static_cast<int>(++done * 100 / schools.size()));
  }
}

void AddCoach(Session& session, int id, const std::string& name, const std::string& team,
              Quality q) {
  const CoachRatings c = RateCoach(session.rng, q);
  session.Db().Append("Coach", {{"Id", int64_t{id}},
                                {"Name", name},
                                {"Ambition", int64_t{c.Ambition}},
                                {"RecruitRegion", c.RecruitRegion},
                                {"PGDev", int64_t{c.PGDev}},
                                {"SGDev", int64_t{c.SGDev}},
                                {"SFDev", int64_t{c.SFDev}},
                                {"RecruitAbility", int64_t{c.RecruitAbility}},
                                {"PFDev", int64_t{c.PFDev}},
                                {"CDev", int64_t{c.CDev}},
                                {"OffCoach", int64_t{c.OffCoach}},
                                {"DefCoach", int64_t{c.DefCoach}},
                                {"Salary", int64_t{c.Salary}},
                                {"Team", team}});
}

void AddScout(Session& session, int id, const std::string& name, const std::string& team,
              Quality q) {
  const ScoutRatings s = RateScout(session.rng, q);
  session.Db().Append("Scout", {{"Id", int64_t{id}},
                                {"Name", name},
                                {"Potential", int64_t{s.Potential}},
                                {"Defending", int64_t{s.Defending}},
                                {"Handling", int64_t{s.Handling}},
                                {"Rebounding", int64_t{s.Rebounding}},
                                {"Espionage", int64_t{s.Espionage}},
                                {"Salary", int64_t{s.Salary}},
                                {"Scoring", int64_t{s.Scoring}},
                                {"Team", team}});
}

void AddTrainer(Session& session, int id, const std::string& name, const std::string& team,
                Quality q) {
  const TrainerRatings t = RateTrainer(session.rng, q);
  session.Db().Append("Trainer", {{"Id", int64_t{id}},
                                  {"Name", name},
                                  {"Ability", int64_t{t.Ability}},
                                  {"Salary", int64_t{t.Salary}},
                                  {"Team", team}});
}

}  // namespace

int CoachRollSize(double prestige) {
  if (prestige > 75) return 30;
  if (prestige > 65) return 40;
  if (prestige > 50) return 50;
  return 100;
}

int ScoutRollSize(double prestige) {
  if (prestige > 75) return 30;
  if (prestige > 65) return 40;
  if (prestige > 50) return 60;
  return 100;
}

int TrainerRollSize(double prestige) {
  if (prestige > 75) return 40;
  if (prestige > 65) return 50;
  if (prestige > 50) return 60;
  return 100;
}

Quality CoachQuality(int x) {
  if (x > 65) return Quality::kPoor;
  if (x > 37) return Quality::kAverage;
  if (x < 20) return Quality::kExc;
  return Quality::kGood;
}

Quality ScoutQuality(int x) {
  if (x > 65) return Quality::kPoor;
  if (x < 18) return Quality::kExc;
  if (x < 38) return Quality::kGood;
  return Quality::kAverage;
}

Quality TrainerQuality(int x) {
  if (x > 65) return Quality::kPoor;
  if (x < 16) return Quality::kExc;
  if (x < 36) return Quality::kGood;
  return Quality::kAverage;
}

CoachRatings RateCoach(Rng& rng, Quality q) {
  CoachRatings c;
  c.Ambition = Draw(rng, {{{70, 30}, {75, 25}, {80, 20}, {90, 10}}}, q);
  c.RecruitAbility = Draw(rng, {{{30, 70}, {40, 60}, {35, 50}, {20, 50}}}, q);
  constexpr ByClass kDev = {{{35, 65}, {45, 55}, {35, 50}, {25, 50}}};
  for (int* dev : {&c.PGDev, &c.SGDev, &c.SFDev, &c.PFDev, &c.CDev}) *dev = Draw(rng, kDev, q);
  constexpr ByClass kCoaching = {{{40, 60}, {50, 50}, {35, 50}, {25, 45}}};
  c.OffCoach = Draw(rng, kCoaching, q);
  c.DefCoach = Draw(rng, kCoaching, q);
  c.Salary = Draw(rng, kSalary, q);
  const int x = rng.R(100, 1);
  c.RecruitRegion = x > 75 ? "West" : x < 26 ? "South" : x < 51 ? "Midwest" : "East";
  return c;
}

ScoutRatings RateScout(Rng& rng, Quality q) {
  ScoutRatings s;
  s.Potential = Draw(rng, {{{30, 75}, {30, 60}, {30, 45}, {20, 30}}}, q);
  constexpr ByClass kSkill = {{{35, 70}, {35, 55}, {30, 40}, {25, 25}}};
  for (int* skill : {&s.Scoring, &s.Defending, &s.Rebounding, &s.Handling}) {
    *skill = Draw(rng, kSkill, q);
  }
  s.Espionage = Draw(rng, {{{35, 70}, {35, 55}, {35, 40}, {25, 25}}}, q);
  s.Salary = Draw(rng, kSalary, q);
  return s;
}

TrainerRatings RateTrainer(Rng& rng, Quality q) {
  TrainerRatings t;
  t.Ability = Draw(rng, {{{30, 75}, {30, 60}, {30, 45}, {20, 30}}}, q);
  t.Salary = Draw(rng, kSalary, q);
  return t;
}

void CreateCoaches(Session& session, int start) {
  CreateStaff(session, {"Coach", kCoachPosts, kCoachLimit, CoachRollSize, CoachQuality, AddCoach},
              start);
}

void CreateScouts(Session& session, int start) {
  CreateStaff(session, {"Scout", kScoutPosts, kScoutLimit, ScoutRollSize, ScoutQuality, AddScout},
              start);
}

void CreateTrainers(Session& session, int start) {
  CreateStaff(
      session,
      {"Trainer", kTrainerPosts, kTrainerLimit, TrainerRollSize, TrainerQuality, AddTrainer},
      start);
}

}  // namespace courtmere
