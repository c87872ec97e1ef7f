// The staff market: firing needs a candidate, hiring a free place, a hired
// coach is a recruiter until the roles are set again; and an assistant
// leaving on his own.
#include "career/staff_market.h"

#include <gtest/gtest.h>

#include "career/coaches_leaving.h"
#include "career_fixture.h"
#include "screens/staff_post.h"

namespace courtmere {
namespace {

struct StaffMarket : ::testing::Test {
  StaffMarket() {
    f.AddSchool("Tulsa", 50);
    f.HireUser("Tulsa", 4);
    AddCoach(1, "Tulsa", 70, 60, 1, 0);
    AddCoach(2, "Tulsa", 60, 70, 0, 1);
    AddCoach(3, "Tulsa", 50, 50, 0, 0);
    f.store().Exec("UPDATE Coach SET RecPoints = 2 - OffPoints - DefPoints");
    AddCoach(4, "Looking at Tulsa", 65, 65, 0, 0);
    f.store().Append("Scout", {{"Id", int64_t{1}}, {"Name", "Al Eye"}, {"Team", "Tulsa"}});
  }
  void AddCoach(int id, const std::string& team, int off, int def, int offPoints, int defPoints) {
    f.store().Append("Coach", {{"Id", int64_t{id}},
                               {"Name", "Coach " + std::to_string(id)},
                               {"Team", team},
                               {"OffCoach", int64_t{off}},
                               {"DefCoach", int64_t{def}},
                               {"Ambition", int64_t{50}},
                               {"OffPoints", int64_t{offPoints}},
                               {"DefPoints", int64_t{defPoints}}});
  }
  std::string TeamOf(int id) {
    return f.store().ScalarText("SELECT Team FROM Coach WHERE Id = ?", id).value_or("");
  }
  testing::CareerFixture f;
};

TEST_F(StaffMarket, HiringNeedsAPlaceAndFiringACandidate) {
  EXPECT_FALSE(HireStaff(f.session(), Post::kCoach, 4));
  EXPECT_EQ(f.ui().Questions().back(), "Do you wish to hire coach Coach 4?");
  EXPECT_EQ(f.ui().Messages().back(),
            "You already have three coaches. You need to fire one before hiring another.");
  EXPECT_FALSE(FireStaff(f.session(), Post::kCoach, 4));  // not on the staff

  ASSERT_TRUE(FireStaff(f.session(), Post::kCoach, 1));
  EXPECT_EQ(TeamOf(1), "Looking At FA");
  EXPECT_EQ(f.store().ScalarInt("SELECT OffPoints + RecPoints FROM Coach WHERE Id = 1"), 0);
  EXPECT_EQ(StaffIncomplete(f.store(), Post::kCoach, "Tulsa"),
            "You can't leave until you have three assistant coaches.");

  ASSERT_TRUE(HireStaff(f.session(), Post::kCoach, 4));
  EXPECT_EQ(TeamOf(4), "Tulsa");
  EXPECT_EQ(f.store().ScalarInt("SELECT RecPoints FROM Coach WHERE Id = 4"), 2);
  // The offence coach is gone: the roles must be set again before leaving.
  EXPECT_EQ(StaffIncomplete(f.store(), Post::kCoach, "Tulsa"),
            "Please change your coaching Roles so that you have one assistant in charge of "
            "offense and one in charge of defense.");
  f.store().Exec("UPDATE Coach SET OffPoints = 1, RecPoints = 1 WHERE Id = 4");
  EXPECT_FALSE(StaffIncomplete(f.store(), Post::kCoach, "Tulsa").has_value());

  // No candidate left: nobody is fired.
  EXPECT_FALSE(FireStaff(f.session(), Post::kCoach, 3));
  EXPECT_EQ(f.ui().Messages().back(),
            "You have no coaches interested in your team to replace this coach.");
  EXPECT_EQ(TeamOf(3), "Tulsa");
  f.ui().QueueAnswer(false);
  EXPECT_FALSE(FireStaff(f.session(), Post::kCoach, 3));
}

TEST_F(StaffMarket, TheScoutsPostHoldsOneMan) {
  f.store().Append("Scout", {{"Id", int64_t{2}},
                             {"Name", "Bo Look"},
                             {"Team", "Looking at Tulsa"},
                             {"Scoring", int64_t{81}}});
  EXPECT_FALSE(HireStaff(f.session(), Post::kScout, 2));
  EXPECT_EQ(f.ui().Messages().back(),
            "You already have a head Scout. You need to fire him before hiring another.");
  ASSERT_TRUE(FireStaff(f.session(), Post::kScout, 1));
  EXPECT_EQ(f.ui().Questions().back(), "Do you wish to fire Scout Al Eye?");
  EXPECT_EQ(StaffIncomplete(f.store(), Post::kScout, "Tulsa"),
            "You can't leave until you select a head scout.");
  const PostView view = LoadPostView(f.store(), Post::kScout, "Tulsa");
  EXPECT_EQ(view.Caption, "Tulsa Head Scout");
  ASSERT_EQ(view.Candidates.size(), 1u);
  EXPECT_EQ(view.Candidates[0].Cells[2], "A");
  ASSERT_TRUE(HireStaff(f.session(), Post::kScout, 2));
  EXPECT_FALSE(StaffIncomplete(f.store(), Post::kScout, "Tulsa").has_value());
}

TEST(CoachLeaves, ByHisSkillsHisAmbitionAndTheDraw) {
  int draws = 0;
  const auto r = [&draws](int value) {
    return [&draws, value] {
      ++draws;
      return value;
    };
  };
  EXPECT_TRUE(CoachLeaves(81, 81, 86, r(1)));
  EXPECT_EQ(draws, 0);
  EXPECT_FALSE(CoachLeaves(81, 81, 85, r(5)));  // not at once: the draw decides
  EXPECT_TRUE(CoachLeaves(81, 81, 85, r(6)));
  EXPECT_TRUE(CoachLeaves(75, 10, 0, r(10)));
  EXPECT_FALSE(CoachLeaves(75, 10, 40, r(9)));
  EXPECT_TRUE(CoachLeaves(10, 75, 41, r(9)));
  EXPECT_FALSE(CoachLeaves(10, 75, 60, r(7)));
  draws = 0;
  EXPECT_FALSE(CoachLeaves(74, 74, 100, r(10)));
  EXPECT_EQ(draws, 0);
}

TEST_F(StaffMarket, AtMostOneCoachLeavesAYearWithHisLetter) {
  f.league().AddScrubTeam("Back Bay", 40);
  f.store().Exec("UPDATE Coach SET OffCoach = 90, DefCoach = 90, Ambition = 90 WHERE Id <= 2");
  CoachesLeaving(f.session());
  // The better offence coach goes first; the second is not examined.
  EXPECT_EQ(TeamOf(1), "Looking For FA");
  EXPECT_EQ(TeamOf(2), "Tulsa");
  ASSERT_EQ(f.session().inbox.Messages.size(), 1u);
  const InboxMessage& letter = f.session().inbox.Messages[0];
  EXPECT_EQ(letter.Subject, "Coach 1 Left");
  EXPECT_EQ(letter.Text,
            "Coach Coach 1 has accepted an offer from Back Bay to become their head coach. He "
            "will no longer be a member of your staff. Please replace him before proceeding.");
}

}  // namespace
}  // namespace courtmere
