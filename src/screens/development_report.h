// The Player Development Report (frmDevelopment): for each of the user's
// players his grades before training and after, side by side, and how he
// did at summer school.
#pragma once

#include <string>
#include <vector>

namespace courtmere {

class Store;

struct GradeChange {
  std::string label;
  std::string before;
  std::string after;
};

struct DevelopmentLine {
  int Id = 0;
  std::string Name;
  int PlayerPosition = 0;
  std::string PlayerYear;
  std::vector<GradeChange> grades;  // nine, in the screen's order
  std::string study;                // "Excellent" .. "Poor"
};

// The study rating for a rise of Intelligence.
const char* StudyRating(double studyInc);

std::vector<DevelopmentLine> DevelopmentReport(Store& store, const std::string& school);

}  // namespace courtmere
