// The selection of the NCT and the ACT on a real store, and their days: who
// gets in and who is left on the bubble, the sites, the user's message, and
// every day recorded again without a change.
#include "league/national_tourneys.h"

#include <gtest/gtest.h>

#include <set>

#include "league/postseason_fixture.h"
#include "league/tourney_error.h"

namespace courtmere {
namespace {

using testing::ColumnSet;
using testing::kUserSchool;
using testing::PostseasonFixture;

std::set<std::string> NctField(Store& store) {
  return ColumnSet(store, "SELECT SchoolName FROM NCTTourney WHERE Seed <= 16");
}

double Score(Store& store, const std::string& school) {
  return store.ScalarDouble("SELECT CRIValue FROM CRIRank WHERE SchoolName = ?", school).value() *
             100 +
         store.ScalarDouble("SELECT TeamPoints FROM Ranking WHERE SchoolName = ?", school).value();
}

// A postseason whose conference tournaments have been played.
struct Selected : PostseasonFixture {
  Selected() { RunConferenceTourneys(); }
};

TEST(NctSelection, TheBubbleComesFromTheAtLargeOrderAndTheSitesFromTheRegions) {
  Selected p;
  SetupNationalTourneys(p.session());
  Store& s = p.store();
  const std::set<std::string> field = NctField(s);
  Rows h = s.Query(
      "SELECT LastIn1, LastIn2, LastIn3, LastIn4, FirstOut1, FirstOut2, FirstOut3, "
      "FirstOut4 FROM NCTHistory");
  ASSERT_TRUE(h.Next());
  for (int i = 0; i < 4; ++i) {
    EXPECT_TRUE(field.count(h.Text(i))) << h.Text(i);
    EXPECT_FALSE(field.count(h.Text(4 + i))) << h.Text(4 + i);
  }
  EXPECT_GE(Score(s, h.Text(0)), Score(s, h.Text(1)));
  EXPECT_GE(Score(s, h.Text(3)), Score(s, h.Text(4)));
  EXPECT_GE(Score(s, h.Text(4)), Score(s, h.Text(7)));
  // No automatic qualifier stands on the bubble.
  const std::set<std::string> champions = ColumnSet(
      s,
      "SELECT SchoolName FROM Team WHERE Winner = 1 UNION SELECT SchoolName FROM ScrubTeam "
      "WHERE Winner = 1");
  for (int i = 0; i < 8; ++i) EXPECT_FALSE(champions.count(h.Text(i)));
  // The ACT's bubble starts from the schools the NCT left.
  Rows a = s.Query("SELECT LastIn1, LastIn4, FirstOut1 FROM ACTHistory");
  ASSERT_TRUE(a.Next());
  for (int i = 0; i < 3; ++i) EXPECT_FALSE(field.count(a.Text(i)));

  // The sites are distinct cities of their regions, and each half of a
  // region plays at its own.
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Cities WHERE Second > 0 OR Regional > 0").value(),
            12);
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Cities WHERE Final = 1 AND PotFinal = 1 AND "
                        "Second = 0 AND Regional = 0")
                .value(),
            1);
  for (const char* region : {"East", "West", "Midwest", "South"}) {
    SCOPED_TRACE(region);
    EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM Cities WHERE Region = ? AND (Second > 0 OR "
                          "Regional > 0)",
                          region)
                  .value(),
              3);
    for (int second = 1; second <= 2; ++second) {
      const std::string city =
          s.ScalarText("SELECT City FROM Cities WHERE Region = ? AND Second = ?", region, second)
              .value();
      const char* seeds =
          second == 1 ? "(1, 4, 5, 8, 9, 12, 13, 16)" : "(2, 3, 6, 7, 10, 11, 14, 15)";
      EXPECT_EQ(ColumnSet(s, "SELECT HostCity FROM NCTTourney WHERE Conference = '" +
                                 std::string(region) + "' AND Seed IN " + seeds),
                std::set<std::string>{city});
    }
  }
  // The games of the first weekend name their seeds.
  EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM " + p.UserTable() +
                        " WHERE Week = 17 AND GameDay = 'Thursday' AND HomeTeam LIKE '1. %'")
                .value(),
            4);
}

TEST(NctSelection, AChampionAtTheBottomOfThePollIsInAndATopTeamWithAPoorIndexIsOut) {
  Selected p;
  Store& s = p.store();
  const std::string lastChampion =
      s.ScalarText(
           "SELECT Ranking.SchoolName FROM Ranking, ScrubTeam WHERE Winner = 1 AND "
           "Ranking.SchoolName = ScrubTeam.SchoolName ORDER BY TeamRanking DESC")
          .value();
  s.Exec("UPDATE Ranking SET TeamRanking = 999, TeamPoints = 1 WHERE SchoolName = ?", lastChampion);
  s.Exec("UPDATE CRIRank SET CRIValue = 0 WHERE SchoolName = ?", lastChampion);
  // The first at-large school of the poll, rated as the weakest of the nation.
  const std::string topLoser =
      s.ScalarText(
           "SELECT SchoolName FROM Ranking WHERE SchoolName NOT IN (SELECT SchoolName "
           "FROM Team WHERE Winner = 1 UNION SELECT SchoolName FROM ScrubTeam WHERE "
           "Winner = 1) ORDER BY TeamRanking")
          .value();
  s.Exec("UPDATE CRIRank SET CRIValue = -50 WHERE SchoolName = ?", topLoser);
  SetupNationalTourneys(p.session());
  const std::set<std::string> field = NctField(s);
  EXPECT_TRUE(field.count(lastChampion));
  EXPECT_EQ(s.ScalarInt("SELECT Seed FROM NCTTourney WHERE SchoolName = ?", lastChampion).value(),
            16);
  EXPECT_FALSE(field.count(topLoser));
}

TEST(NctSelection, TheUserHearsHisSeedRegionAndSite) {
  Selected p;
  Store& s = p.store();
  s.Exec("UPDATE Team SET Winner = 1 WHERE SchoolName = ?", kUserSchool);
  SetupNationalTourneys(p.session());
  Rows r = s.Query("SELECT Seed, Conference, HostCity FROM NCTTourney WHERE SchoolName = ?",
                   kUserSchool);
  ASSERT_TRUE(r.Next());
  ASSERT_EQ(p.session().inbox.Messages.size(), 1u);
  const InboxMessage& m = p.session().inbox.Messages.front();
  EXPECT_EQ(m.Sender, "Assistant");
  EXPECT_EQ(m.Subject, "Made the NCT!");
  EXPECT_EQ(m.Text, "It has been announced that we made the NCT! We will be the No " +
                        std::to_string(r.Int(0)) + " seed in the " + r.Text(1) +
                        " region. We better get travel plans ready for " + r.Text(2) + ".");
}

TEST(NctSelection, AUserLeftOutOfTheNctHearsOfTheAct) {
  Selected p;
  Store& s = p.store();
  s.Exec("UPDATE Team SET Winner = 0 WHERE SchoolName = ?", kUserSchool);
  // The user's school stands just below the 60 at-large candidates of the
  // NCT, with the best index of the nation for the ACT.
  const int64_t sixtieth =
      s.ScalarInt(
           "SELECT TeamRanking FROM Ranking WHERE SchoolName NOT IN (SELECT SchoolName "
           "FROM Team WHERE Winner = 1 UNION SELECT SchoolName FROM ScrubTeam WHERE "
           "Winner = 1) AND SchoolName <> ? ORDER BY TeamRanking LIMIT 1 OFFSET 59",
           kUserSchool)
          .value();
  s.Exec("UPDATE Ranking SET TeamRanking = TeamRanking + 1 WHERE TeamRanking > ?", sixtieth);
  s.Exec("UPDATE Ranking SET TeamRanking = ? WHERE SchoolName = ?", sixtieth + 1, kUserSchool);
  s.Exec("UPDATE CRIRank SET CRIValue = 100 WHERE SchoolName = ?", kUserSchool);
  SetupNationalTourneys(p.session());
  EXPECT_FALSE(NctField(s).count(kUserSchool));
  EXPECT_EQ(s.ScalarInt("SELECT Seed FROM ACTTourney WHERE SchoolName = ?", kUserSchool).value(),
            21);
  ASSERT_EQ(p.session().inbox.Messages.size(), 1u);
  EXPECT_EQ(p.session().inbox.Messages.front().Subject, "Made the ACT.");
  EXPECT_EQ(p.session().inbox.Messages.front().Text,
            "The bad news is we didn't make the NCT. The good news is we made the ACT. So, "
            "let's get ready for a run to be the 65th best team in the nation!");
}

TEST(NctSelection, APollTooShortForTheFieldIsRefusedWithNothingWritten) {
  Selected p;
  Store& s = p.store();
  s.Exec("DELETE FROM Ranking WHERE TeamRanking > 40");
  const std::string before = testing::DumpStore(s);
  EXPECT_THROW(SetupNationalTourneys(p.session()), TourneyError);
  EXPECT_EQ(testing::DumpStore(s), before);
}

// Every day recorded again changes nothing; the final four is marked when it
// is set, and the champion closes the year.
TEST(NationalDays, EveryDayRecordedAgainChangesNothingAndTheChampionClosesTheYear) {
  Selected p;
  Store& s = p.store();
  SetupNationalTourneys(p.session());
  const std::string selected = testing::DumpStore(s);
  SetupNationalTourneys(p.session());
  EXPECT_EQ(testing::DumpStore(s), selected);
  std::set<std::string> finalFour;
  for (const testing::PostseasonDay& day : testing::NationalDays()) {
    p.PlayNationalDay(day);
    const std::string once = testing::DumpStore(s);
    RecordPostseasonDay(p.session(), day.week, day.day);
    EXPECT_EQ(testing::DumpStore(s), once) << day.day << " of week " << day.week;
    if (day.week != 18 || day.day != "Sunday") continue;
    finalFour = ColumnSet(s,
                          "SELECT SchoolName FROM Team WHERE NCTFinalFour = 1 UNION SELECT "
                          "SchoolName FROM ScrubTeam WHERE NCTFinalFour = 1");
    EXPECT_EQ(finalFour.size(), 4u);
    EXPECT_EQ(s.ScalarInt("SELECT count(*) FROM " + p.UserTable() +
                          " WHERE Week = 19 AND GameDay = 'Saturday' AND GameType = 'FinalFour'")
                  .value(),
              2);
    EXPECT_FALSE(NctChampion(s));
  }
  Rows h = s.Query("SELECT FinalFour1, FinalFour2, FinalFour3, FinalFour4, Champ FROM NCTHistory");
  ASSERT_TRUE(h.Next());
  std::set<std::string> recorded;
  for (int i = 0; i < 4; ++i) recorded.insert(h.Text(i));
  EXPECT_EQ(recorded, finalFour);
  EXPECT_EQ(h.Text(4), NctChampion(s).value());
  EXPECT_TRUE(finalFour.count(h.Text(4)));
}

}  // namespace
}  // namespace courtmere
