#include "screens/development_report.h"

#include "store/store.h"

namespace courtmere {

namespace {

struct GradePair {
  const char* label;
  const char* pre;
  const char* now;
};
constexpr GradePair kGrades[] = {
    {"Athletic", "PreAthleticGrade", "AthleticGrade"},
    {"Scoring", "PreScoreGrade", "ScoreGrade"},
    {"Shooting", "PreShootingGrade", "ShootingGrade"},
    {"Outside", "PreOutsideShootGrade", "OutsideShootGrade"},
    {"Rebounding", "PreReboundGrade", "ReboundGrade"},
    {"Per. Defense", "PrePerrDefenseGrade", "PerrDefenseGrade"},
    {"Post Defense", "PrePostDefenseGrade", "PostDefenseGrade"},
    {"Handling", "PreHandlingGrade", "HandlingGrade"},
    {"Passing", "PrePassingGrade", "PassingGrade"},
};

}  // namespace

const char* StudyRating(double studyInc) {
  if (studyInc > 12) return "Excellent";
  if (studyInc > 9) return "Very Good";
  if (studyInc > 6) return "Good";
  if (studyInc > 3) return "Fair";
  return "Poor";
}

std::vector<DevelopmentLine> DevelopmentReport(Store& store, const std::string& school) {
  std::string columns;
  for (const GradePair& g : kGrades) columns += std::string(", ") + g.pre + ", " + g.now;
  std::vector<DevelopmentLine> lines;
  for (Rows r = store.Query("SELECT Id, Name, PlayerPosition, PlayerYear, StudyInc" + columns +
                                " FROM Player, Development WHERE Team = ? AND PlayerId = Id ORDER "
                                "BY PlayerPosition ASC, Id",
                            school);
       r.Next();) {
    DevelopmentLine line;
    line.Id = r.Int(0);
    line.Name = r.Text(1);
    line.PlayerPosition = r.Int(2);
    line.PlayerYear = r.Text(3);
    line.study = StudyRating(r.Double(4));
    int c = 5;
    for (const GradePair& g : kGrades) {
      line.grades.push_back({g.label, r.Text(c), r.Text(c + 1)});
      c += 2;
    }
    lines.push_back(std::move(line));
  }
  return lines;
}

}  // namespace courtmere
