// The conference choice of File > New: three slots, their messages, and a
// store that changes only when Continue goes through.
#include "screens/conference_choice.h"

#include <gtest/gtest.h>

#include "league/dynasty_fixture.h"
#include "league/new_dynasty.h"
#include "screens/school_snapshot.h"

namespace courtmere {
namespace {

constexpr const char* kFull =
    "You already have selected three leagues. Please remove one if you wish to select another.";

// A store at the conference choice: cleared, with the six fixed conferences.
struct AtConferenceChoice : testing::BlankProgram {
  AtConferenceChoice() { BeginNewDynasty(session()); }
  int64_t Leagues() { return store().RowCount("League"); }
};

TEST(ConferenceChoice, ListsTheLowConferencesAndTheirSchools) {
  AtConferenceChoice p;
  ConferenceChoice choice(p.session());
  EXPECT_EQ(choice.Conferences().size(), 25u);
  EXPECT_TRUE(std::is_sorted(choice.Conferences().begin(), choice.Conferences().end()));
  EXPECT_EQ(std::count(choice.Conferences().begin(), choice.Conferences().end(), "ACC"), 0);
  const auto schools = choice.Schools("WCC");
  EXPECT_TRUE(std::is_sorted(schools.begin(), schools.end()));
  EXPECT_NE(std::find(schools.begin(), schools.end(), "Saint Mary's"), schools.end());
  const SchoolSnapshot s = choice.Snapshot("Saint Mary's");
  EXPECT_EQ(s.Location, "Moraga");
  EXPECT_EQ(s.State, "CA");
  EXPECT_EQ(s.Population, "16,290");
  EXPECT_EQ(s.ArenaCapacity, "3,500");
  EXPECT_EQ(s.Prestige, "Very Low");  // 28
  EXPECT_EQ(s.Expectations, "Avoid embarrassment");
}

TEST(ConferenceChoice, AFourthIsRefusedAndARemovedSlotIsFilledFirst) {
  AtConferenceChoice p;
  ConferenceChoice choice(p.session());
  EXPECT_TRUE(choice.Add("MVC"));
  EXPECT_TRUE(choice.Add("WAC"));
  EXPECT_TRUE(choice.Add("WCC"));
  EXPECT_FALSE(choice.Add("MAC"));
  EXPECT_EQ(p.ui().Messages().back(), kFull);
  EXPECT_EQ(p.ui().Questions()[1], "Do you wish to add the MVC to your list of three?");

  EXPECT_TRUE(choice.Remove(1));
  EXPECT_EQ(p.ui().Questions().back(),
            "Are you sure you want to remove the WAC from your list of three?");
  EXPECT_TRUE(choice.Add("MAC"));
  EXPECT_EQ(choice.Chosen(), (std::array<std::string, 3>{"MVC", "MAC", "WCC"}));
  EXPECT_EQ(p.Leagues(), 6);  // nothing is written before Continue
}

TEST(ConferenceChoice, NoToAQuestionLeavesTheSlots) {
  AtConferenceChoice p;
  ConferenceChoice choice(p.session());
  p.ui().QueueAnswer(false);
  EXPECT_FALSE(choice.Add("MVC"));
  EXPECT_EQ(choice.Chosen()[0], "");
  EXPECT_TRUE(choice.Add("MVC"));
  p.ui().QueueAnswer(false);
  EXPECT_FALSE(choice.Remove(0));
  EXPECT_EQ(choice.Chosen()[0], "MVC");
  EXPECT_FALSE(choice.Remove(2));  // an empty slot has nothing to remove
}

TEST(ConferenceChoice, UnknownAndRepeatedConferencesAreRefused) {
  AtConferenceChoice p;
  ConferenceChoice choice(p.session());
  EXPECT_FALSE(choice.Add("Big Sky's Cousin"));
  EXPECT_EQ(p.ui().Messages().back(), "League not found");
  EXPECT_FALSE(choice.Add("ACC"));  // a fixed conference is not on the list
  EXPECT_TRUE(choice.Add("MVC"));
  EXPECT_FALSE(choice.Add("MVC"));
  EXPECT_EQ(p.ui().Messages().back(), "The MVC is already on your list of three.");
}

TEST(ConferenceChoice, ContinueNeedsThreeAndAYes) {
  AtConferenceChoice p;
  ConferenceChoice choice(p.session());
  choice.Add("MVC");
  choice.Add("WAC");
  EXPECT_FALSE(choice.Continue());
  EXPECT_EQ(p.ui().Messages().back(), "Please enter three leagues before proceeding.");
  EXPECT_EQ(p.Leagues(), 6);
  choice.Add("WCC");
  p.ui().QueueAnswer(false);
  EXPECT_FALSE(choice.Continue());
  EXPECT_EQ(p.Leagues(), 6);

  EXPECT_TRUE(choice.Continue());
  EXPECT_EQ(p.ui().Questions().back(), "Do you wish to add these three leagues to your dynasty?");
  std::vector<std::string> added;
  for (Rows rows =
           p.store().Query("SELECT Id, Conference, SchedType FROM League WHERE Id > 6 ORDER BY Id");
       rows.Next();) {
    added.push_back(rows.Text(0) + " " + rows.Text(1) + " " + rows.Text(2));
  }
  EXPECT_EQ(added, (std::vector<std::string>{"7 MVC 10", "8 WAC 10", "9 WCC 8"}));
  EXPECT_EQ(p.store().ScalarInt("SELECT count(*) FROM Team WHERE Conference = 'WCC'"), 8);
  EXPECT_EQ(
      p.store().ScalarInt("SELECT InitialPrestige FROM Team WHERE SchoolName = ?", "Saint Mary's"),
      28);
  EXPECT_EQ(p.store().ScalarInt("SELECT count(*) FROM TeamStats"),
            p.store().ScalarInt("SELECT count(*) FROM Team"));
}

TEST(FormatThousands, GroupsDigitsWithAtLeastFour) {
  EXPECT_EQ(FormatThousands(950), "0,950");
  EXPECT_EQ(FormatThousands(0), "0,000");
  EXPECT_EQ(FormatThousands(3500), "3,500");
  EXPECT_EQ(FormatThousands(2229379), "2,229,379");
  EXPECT_EQ(FormatThousands(100000), "100,000");
}

}  // namespace
}  // namespace courtmere
