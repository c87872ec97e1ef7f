#include "people/grading.h"

#include "people/rating.h"
#include "platform/numeric.h"
#include "platform/rng.h"
#include "store/session.h"

namespace courtmere {

namespace {

bool IsRegionName(const std::string& team) {
  return team == "West" || team == "Midwest" || team == "East" || team == "South";
}

// The scout's estimates of the nine judged values and of Potential.
struct Estimates {
  double A, I, J, T, D, Q, H, P, R, Potential;
};

Estimates Estimate(Rng& rng, const ScoutSkills& scout, const Player& p) {
  const double d = (p.PerrDefense * 1.3 + p.Quickness * 0.7) / 2;
  const double q = (p.Strength * 0.3 + p.PostDefense * 1.2) / 1.5;
  const double r = (p.OffReb + p.DefReb) / 2.0;
  auto est = [&rng](double value, int skill) {
    return ScoutEstimate(rng, value, ScoutSpread(skill));
  };
  Estimates e{};
  e.A = est(AthleticValue(p), scout.Potential);
  e.I = est(p.InScoring, scout.Scoring);
  e.J = est(p.Jumpshot, scout.Scoring);
  e.T = est(p.ThreePoint, scout.Scoring);
  e.D = est(d, scout.Defending);
  e.Q = est(q, scout.Defending);
  e.H = est(p.Handling, scout.Handling);
  e.P = est(p.Passing, scout.Handling);
  e.R = est(r, scout.Rebounding);
  e.Potential = est(p.Potential, scout.Potential);
  return e;
}

double ScoutOverallFor(int position, const Estimates& e) {
  switch (position) {
    case kPG:
      return (e.P + e.H + 0.8 * e.D + 0.7 * e.J + 0.6 * e.T + 0.1 * e.R + 0.3 * e.A) / 4.5;
    case kSG:
      return (e.J + e.T + 0.8 * e.D + 0.6 * e.P + 0.5 * e.H + 0.3 * e.R + 0.3 * e.A) / 4.5;
    case kSF:
      return (0.8 * e.J + 0.4 * e.I + 0.8 * e.R + 0.6 * e.P + 0.5 * e.D + 0.5 * e.T + 0.4 * e.H +
              0.2 * e.Q + 0.3 * e.A) /
             4.5;
    case kPF:
      return (e.R + e.I + 0.4 * e.J + e.Q + 0.3 * e.P + 0.1 * e.H + 0.1 * e.D + 0.1 * e.T +
              0.3 * e.A) /
             4.3;
    default:
      return (e.R + e.Q + 0.8 * e.I + 0.2 * e.J + 0.5 * e.P + 0.1 * e.T + 0.3 * e.A) / 3.9;
  }
}

}  // namespace

char GradeLetter(double x) {
  if (x > 74) return 'A';
  if (x > 62) return 'B';
  if (x > 49) return 'C';
  if (x > 40) return 'D';
  return 'F';
}

char PotentialGradeLetter(double x) {
  if (x > 75) return 'A';
  if (x > 60) return 'B';
  if (x > 50) return 'C';
  if (x > 40) return 'D';
  return 'F';
}

int ScoutSpread(int skill) {
  if (skill > 90) return 5;
  if (skill > 80) return 7;
  if (skill > 70) return 10;
  if (skill > 60) return 13;
  if (skill > 50) return 15;
  if (skill > 40) return 18;
  if (skill > 30) return 20;
  return 25;
}

double ScoutEstimate(Rng& rng, double value, int spread) {
  const int up = Int(spread * rng.Rnd() + 5);
  const int down = -Int(spread * rng.Rnd() + 5);
  const int coin = Int(rng.Rnd() * 10 + 1);
  return coin > 5 ? value + up : value + down;
}

std::optional<ScoutSkills> FindScout(Store& store, const std::string& team) {
  std::string school = team;
  if (IsRegionName(team)) {
    auto human = store.ScalarText("SELECT SchoolName FROM Team WHERE Owner = 'Human'");
    if (!human) return std::nullopt;
    school = *human;
  }
  Rows rows = store.Query(
      "SELECT Potential, Scoring, Defending, Rebounding, Handling FROM Scout WHERE Team = ?",
      school);
  if (!rows.Next()) return std::nullopt;
  return ScoutSkills{rows.Int(0), rows.Int(1), rows.Int(2), rows.Int(3), rows.Int(4)};
}

void GradePlayerWith(Rng& rng, const ScoutSkills& scout, Player& p) {
  const Estimates e = Estimate(rng, scout, p);
  p.AthleticGrade.assign(1, GradeLetter(e.A));
  p.ScoreGrade.assign(1, GradeLetter(e.I));
  p.ShootingGrade.assign(1, GradeLetter(e.J));
  p.OutsideShootGrade.assign(1, GradeLetter(e.T));
  p.PerrDefenseGrade.assign(1, GradeLetter(e.D));
  p.PostDefenseGrade.assign(1, GradeLetter(e.Q));
  p.HandlingGrade.assign(1, GradeLetter(e.H));
  p.PassingGrade.assign(1, GradeLetter(e.P));
  p.ReboundGrade.assign(1, GradeLetter(e.R));
  p.PotentialGrade.assign(1, PotentialGradeLetter(e.Potential));
  p.ScoutOverall = ScoutOverallFor(p.PlayerPosition, e);
}

void GradePlayer(Session& session, Player& player) {
  const auto scout = FindScout(session.Db(), player.Team);
  if (!scout) return;
  GradePlayerWith(session.rng, *scout, player);
}

}  // namespace courtmere
