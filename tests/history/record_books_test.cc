// The record books' yearly update on a small store made by hand.
#include "store/record_books.h"

#include "hand_made_store.h"
#include "history/record_update.h"
#include "screens/record_list.h"

namespace courtmere::testing {
namespace {

class RecordBooks : public HandMadeStore {
 protected:
  RecordBooks() {
    AddSchool("Duke", "ACC");
    AddSchool("Wake Forest", "ACC");
    AddSchool("Gonzaga", "WCC");
    CreateRecords(store());
  }
  // The index of a season (or career) mark.
  static int Mark(const std::string& stem, bool career = false) {
    for (int i = 0; i < kRecordGroups; ++i) {
      if (RecordGroups()[i].stem == stem && RecordGroups()[i].career == career) return i;
    }
    return -1;
  }
  RecordMark Book(const std::string& type, const std::string& stem, bool career = false) {
    return ReadRecordBook(store(), type).marks[Mark(stem, career)];
  }
};

TEST_F(RecordBooks, PercentagesNeedTheirSample) {
  const int few = AddPlayer("Few Shots", "Duke");
  const int enough = AddPlayer("Enough Shots", "Duke");
  SetSeason(few, {{"Shots", 74},
                  {"FGPercent", 0.9},
                  {"FreeThrows", 34},
                  {"FTPercent", 1.0},
                  {"Threes", 34},
                  {"ThreePercent", 0.8}});
  SetSeason(enough, {{"Shots", 75},
                     {"FGPercent", 0.5},
                     {"FreeThrows", 35},
                     {"FTPercent", 0.7},
                     {"Threes", 35},
                     {"ThreePercent", 0.4}});
  UpdateRecords(store(), 2002);
  for (const char* stem : {"FGPercent", "FTPercent", "ThreePercent"}) {
    EXPECT_EQ(Book("Duke", stem).player, "Enough Shots") << stem;
    EXPECT_EQ(Book("National", stem).player, "Enough Shots") << stem;
  }
  // Careers alike: the career row of the player with 74 shots doesn't count.
  store().Exec(
      "INSERT INTO CareerPlayerStats (Id, Shots, FGPercent) VALUES (?, 74, 0.9), (?, 75, 0.5)", few,
      enough);
  UpdateRecords(store(), 2002);
  EXPECT_EQ(Book("Duke", "FGPercent", true).player, "Enough Shots");
}

TEST_F(RecordBooks, EachBookCountsItsScopeAndAnEqualMarkKeepsTheHolder) {
  const int duke = AddPlayer("Duke Star", "Duke");
  const int wake = AddPlayer("Wake Star", "Wake Forest");
  const int zag = AddPlayer("Zag Star", "Gonzaga");
  SetSeason(duke, {{"PPG", 20}, {"Points", 600}});
  SetSeason(wake, {{"PPG", 25}, {"Points", 500}});
  SetSeason(zag, {{"PPG", 30}, {"Points", 400}});
  UpdateRecords(store(), 2002);
  EXPECT_EQ(Book("Duke", "PPG").player, "Duke Star");
  EXPECT_EQ(Book("Duke", "PPG").team, "Duke");
  EXPECT_EQ(Book("ACC", "PPG").player, "Wake Star");
  EXPECT_EQ(Book("ACC", "Points").player, "Duke Star");
  EXPECT_EQ(Book("WCC", "PPG").value, 30);
  EXPECT_EQ(Book("National", "PPG").player, "Zag Star");
  EXPECT_EQ(Book("National", "Points").player, "Duke Star");
  // Rebounds are the sum of both kinds.
  SetSeason(wake, {{"PPG", 25}, {"OffRebounds", 100}, {"DefRebounds", 150}});
  // A year later a new man equals the mark: the holder stays, with his year.
  const int rival = AddPlayer("Equal Man", "Gonzaga");
  SetSeason(zag, {});
  SetSeason(rival, {{"PPG", 30}});
  UpdateRecords(store(), 2003);
  EXPECT_EQ(Book("National", "PPG").player, "Zag Star");
  EXPECT_EQ(Book("National", "PPG").year, 2002);
  EXPECT_EQ(Book("ACC", "Rebounds").value, 250);
  EXPECT_EQ(Book("National", "Rebounds").team, "Wake Forest");
  EXPECT_EQ(Book("National", "Rebounds").year, 2003);
}

TEST_F(RecordBooks, TheScreenListsABookWithItsLabelsAndPercentages) {
  EXPECT_TRUE(RecordList(store(), "", false).empty());
  const int id = AddPlayer("Sharp Shooter", "Duke");
  SetSeason(id, {{"PPG", 18.25}, {"Shots", 200}, {"FGPercent", 0.45678}, {"ShotsMade", 91}});
  UpdateRecords(store(), 2002);
  const std::vector<RecordRow> season = RecordList(store(), "", false);
  ASSERT_EQ(season.size(), 15u);
  EXPECT_EQ(season[0].record, "PPG");
  EXPECT_EQ(season[0].value, "18.2");
  EXPECT_EQ(season[0].year, "2002");
  const auto fg = std::find_if(season.begin(), season.end(),
                               [](const RecordRow& r) { return r.record == "Field Goal Percent"; });
  ASSERT_NE(fg, season.end());
  EXPECT_EQ(fg->value, "45.7%");
  EXPECT_EQ(RecordList(store(), "Duke", true).size(), 10u);
}

}  // namespace
}  // namespace courtmere::testing
