#include "screens/draft_list.h"

#include "store/store.h"

namespace courtmere {

namespace {

std::string FirstNameAndBlank(const std::string& name) {
  const size_t blank = name.find(' ');
  return blank == std::string::npos ? name + " " : name.substr(0, blank + 1);
}

// The three texts of a group, picked by Id Mod 3: 1, 2, then 0.
const char* ByIdMod3(int id, const char* one, const char* two, const char* zero) {
  switch (id % 3) {
    case 1:
      return one;
    case 2:
      return two;
    default:
      return zero;
  }
}

}  // namespace

std::string CollegeLeaverReason(const std::string& name, int id, double gpa, double overall) {
  const char* text = nullptr;
  if (gpa < 2) {
    text =
        ByIdMod3(id, "is simply sick of attending class.",
                 "is in danger of failing some core classes.", "doesn't feel he'll ever graduate.");
  } else if (overall > 70) {
    text = ByIdMod3(id, "feels he's ready to contribute at the next level.",
                    "is looking for a bigger challenge than college.",
                    "was told by Scouts that he would be a lottery pick.");
  } else {
    text = ByIdMod3(id, "needs the money to support his family.",
                    "hired an agent in hopes of getting selected in the top 20.",
                    "is looking to capitalize off his recent national exposure.");
  }
  return FirstNameAndBlank(name) + text;
}

std::string RecruitLeaverReason(const std::string& name, int id, double gpa,
                                const std::string& recruitType) {
  const char* text = "feels he will be a first round pick if he leaves now.";
  if (recruitType == "Exc") {
    text = "was told by some GMs that he will be a lottery pick.";
  } else if (gpa < 2 && id % 2 == 1) {
    text = "doesn't feel he has the grades to attend college.";
  } else if (gpa < 2) {
    text = "doesn't want to worry about attending class.";
  }
  return FirstNameAndBlank(name) + text;
}

std::vector<EarlyLeaver> PlayersLeavingEarly(Store& store) {
  std::vector<EarlyLeaver> list;
  for (Rows r = store.Query(
           "SELECT Name, Team, Id, GPA, PlayerYear, Overall FROM Player WHERE NBAFlag = 1 AND "
           "PlayerYear <> 'Senior' AND PlayerYear <> 'Recruit' ORDER BY Team, Id");
       r.Next();) {
    list.push_back({r.Text(0), r.Text(4), r.Text(1),
                    CollegeLeaverReason(r.Text(0), r.Int(2), r.Double(3), r.Double(5))});
  }
  for (Rows r = store.Query(
           "SELECT Player.Id, Name, RecruitType, Recruit.GPA, Region FROM Player, Recruit WHERE "
           "NBAFlag = 1 AND PlayerYear = 'Recruit' AND Player.Id = Recruit.Id ORDER BY Region, "
           "Player.Id");
       r.Next();) {
    list.push_back({r.Text(1), "Recruit", r.Text(4) + " Region",
                    RecruitLeaverReason(r.Text(1), r.Int(0), r.Double(3), r.Text(2))});
  }
  return list;
}

std::vector<DraftPick> ShowDraft(Store& store) {
  std::vector<DraftPick> picks;
  for (Rows r = store.Query(
           "SELECT Pick, Team, Name, Height, Position, School, PPG, RPG, APG FROM NBADraft WHERE "
           "Pick > 0 ORDER BY Pick ASC");
       r.Next();) {
    picks.push_back({r.Int(0), r.Text(1), r.Text(2), r.Text(3), r.Text(4), r.Text(5), r.Double(6),
                     r.Double(7), r.Double(8)});
  }
  return picks;
}

std::string DraftTitle(int year) {
  return std::to_string(year) + " NBA Draft";
}

}  // namespace courtmere
