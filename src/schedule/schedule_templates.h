// The conference schedule templates: fixed tables of pairings over numbered
// team slots, week by week, Thursday and Saturday. Each entry h-a is a game of
// slot h at home against slot a; the games of a day are added from left to
// right, and that is also the order of their game numbers. A cross table
// pairs slots of the first division (A) with those of the second (B).
#pragma once

#include <vector>

namespace courtmere {

enum class TemplateTable {
  k8,
  k9,
  k10,
  k11,
  k12A,
  k13,
  kDivision14,  // each division of "14A" and "14B"
  kCross14,
  kDivision12,  // each division of "12B" and "12C"
  kCross12,
};

// A slot of the conference, or of a division: 0 the first (A), 1 the second (B).
struct TemplateSide {
  int division = 0;
  int slot = 0;
};

struct TemplateGame {
  int week = 0;
  bool saturday = false;
  TemplateSide home;
  TemplateSide away;
};

// The games of a table in the order they are added.
std::vector<TemplateGame> TemplateGames(TemplateTable table);

}  // namespace courtmere
