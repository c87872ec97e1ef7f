#include "history/draft_pool.h"

#include <fmt/format.h>

#include <vector>

#include "history/invented_line.h"
#include "people/player.h"
#include "platform/numeric.h"
#include "store/session.h"

namespace courtmere {

namespace {

constexpr const char* kJsbHeader =
    "PLAYER NAME, POS, AGE, G, MIN, FGM, FGA, FTM, FTA, 3FGM, 3FGA, OREB, REB, AST, STL, TO, BLK, "
    "PF, TALENT, SKILL, INTANGIBLES, TEAM, COMP, DURABLE, ABILITY";
constexpr const char* kFbbHeader =
    "PLAYER NAME, POS, AGE, G, MIN, FGM, FGA, FTM, FTA, 3FGM, 3FGA, OREB, REB, AST, STL, TO, BLK, "
    "PF, HT, SchedStr, Pot, College";

// One player of the pool with what either file needs.
struct PoolPlayer {
  int id = 0;
  std::string name, year, team, highSchool, homeTown;
  int position = 0, jumpshot = 0, threePoint = 0, inScoring = 0, potential = 0;
  int avoidInjury = 0, reach = 0;
  double overall = 0;
  bool hasStats = false;
  PoolLine stats;
};

std::vector<PoolPlayer> ReadPool(Store& store) {
  std::vector<PoolPlayer> pool;
  for (Rows r = store.Query(
           "SELECT p.Id, p.Name, p.PlayerYear, p.Team, p.HighSchool, p.HomeTown, p.PlayerPosition, "
           "p.Jumpshot, p.ThreePoint, p.InScoring, p.Potential, p.AvoidInjury, p.Reach, p.Overall, "
           "s.Id IS NOT NULL, s.Games, s.Minutes, s.ShotsMade, s.Shots, s.FTMade, s.FreeThrows, "
           "s.ThreesMade, s.Threes, s.OffRebounds, s.OffRebounds + s.DefRebounds, s.Assists, "
           "s.Steals, s.Turnovers, s.ShotBlocks, s.Fouls FROM Player AS p LEFT JOIN PlayerStats "
           "AS s ON s.Id = p.Id WHERE p.NBAFlag = 1 ORDER BY p.Overall DESC, p.Id ASC");
       r.Next();) {
    PoolPlayer p{r.Int(0),  r.Text(1),    r.Text(2),      r.Text(3), r.Text(4), r.Text(5),
                 r.Int(6),  r.Int(7),     r.Int(8),       r.Int(9),  r.Int(10), r.Int(11),
                 r.Int(12), r.Double(13), r.Int(14) != 0, {}};
    p.stats = {r.Int(15), r.Int(16), r.Int(17), r.Int(18), r.Int(19),
               r.Int(20), r.Int(21), r.Int(22), r.Int(23), r.Int(24),
               r.Int(25), r.Int(26), r.Int(27), r.Int(28), r.Int(29)};
    pool.push_back(std::move(p));
  }
  return pool;
}

std::optional<SchoolFigures> RecruitFigures(Store& store, int id) {
  Rows r = store.Query("SELECT PPG, RPG, APG, SPG, TOs FROM Recruit WHERE Id = ?", id);
  if (!r.Next()) return std::nullopt;
  return SchoolFigures{r.Double(0), r.Double(1), r.Double(2), r.Double(3), r.Double(4)};
}

// Design decision: a junior-college recruit is aged as a recruit, the one
// kind of recruit the leagues' age table names.
int Age(Rng& rng, const std::string& year) {
  if (year == "Freshman") return 19;
  if (year == "Sophomore") return 20;
  if (year == "Junior") return 21;
  if (year == "Senior") return 22;
  return Int(rng.Rnd() * 10 + 1) > 5 ? 17 : 18;
}

int Band(double x, std::initializer_list<double> limits) {
  int score = static_cast<int>(limits.size()) + 1;
  for (double limit : limits) {
    if (x > limit) return score;
    --score;
  }
  return 1;
}

int Talent(const PoolPlayer& p) {
  double x = 0;
  if (p.position == kPG || p.position == kSG) {
    x = (p.jumpshot + p.threePoint) / 2.0;
  } else if (p.position == kSF) {
    x = (p.jumpshot + p.threePoint + p.inScoring) / 3.0;
  } else {
    x = (p.jumpshot + p.inScoring) / 2.0;
  }
  return Band(x, {88, 78, 68, 58});
}

struct SchoolRatings {
  double teamRating = 0, scheduleStrength = 0;
};

SchoolRatings RatingsOf(Store& store, const std::string& school) {
  Rows r =
      store.Query("SELECT TeamRating, ScheduleStrength FROM Team WHERE SchoolName = ?", school);
  if (!r.Next()) return {};
  return {r.Double(0), r.Double(1)};
}

std::string LineFields(const PoolLine& l) {
  return fmt::format("{},{},{},{},{},{},{},{},{},{},{},{},{},{},{}", l.G, l.MIN, l.FGM, l.FGA,
                     l.FTM, l.FTA, l.ThreeFGM, l.ThreeFGA, l.OREB, l.REB, l.AST, l.STL, l.TO, l.BLK,
                     l.PF);
}

// "Central HS (Gary IN)": the high school, the town before its comma and the
// state's two letters.
std::string RecruitCollege(const PoolPlayer& p) {
  const std::string town = p.homeTown.substr(0, p.homeTown.find(','));
  const std::string state = p.homeTown.size() >= 2 ? p.homeTown.substr(p.homeTown.size() - 2) : "";
  return fmt::format("{} ({} {})", p.highSchool, town, state);
}

}  // namespace

std::string JsbDraftPool(Session& session) {
  Store& store = session.Db();
  Rng& rng = session.rng;
  rng.Reseed();
  std::string text = std::string(kJsbHeader) + "\n\n";
  for (const PoolPlayer& p : ReadPool(store)) {
    PoolLine line = p.stats;
    bool recruit = false;
    if (line.FGA == 0) {
      const std::optional<SchoolFigures> figures = RecruitFigures(store, p.id);
      if (!figures) continue;  // a college player who took no shot
      recruit = true;
      line = InventedLine(rng, p.position, *figures);
    }
    const int age = Age(rng, p.year);
    const int intangibles = Int(rng.Rnd() * 5 + 1);
    const SchoolRatings school = recruit ? SchoolRatings{} : RatingsOf(store, p.team);
    const int team = recruit ? 1 : Band(school.teamRating, {525, 500, 490, 480, 470, 460});
    const int comp = recruit ? 1 : Band(school.scheduleStrength, {500, 495, 490, 485, 480, 470});
    text +=
        fmt::format("{},{},{},{},{},{},{},{},{},{},{}\n", p.name, PositionName(p.position), age,
                    LineFields(line), Talent(p), Band(p.potential, {85, 75, 65, 55}), intangibles,
                    team, comp, Band(p.avoidInjury, {90, 80, 70, 60}), CInt(p.overall) + 3);
  }
  return text;
}

std::string FbbDraftPool(Session& session) {
  Store& store = session.Db();
  Rng& rng = session.rng;
  rng.Reseed();
  std::string text = std::string(kFbbHeader) + "\n\n";
  for (const PoolPlayer& p : ReadPool(store)) {
    const std::optional<SchoolFigures> figures = RecruitFigures(store, p.id);
    const PoolLine line = figures ? InventedLine(rng, p.position, *figures) : p.stats;
    const int age = Age(rng, p.year);
    const std::string tail =
        figures ? fmt::format("{},0,{},{}", p.reach, p.potential, RecruitCollege(p))
                : fmt::format("{},{},{},{}", p.reach,
                              CInt(RatingsOf(store, p.team).scheduleStrength), p.potential, p.team);
    text += fmt::format("{},{},{},{},{}\n", p.name, PositionName(p.position), age, LineFields(line),
                        tail);
  }
  return text;
}

}  // namespace courtmere
