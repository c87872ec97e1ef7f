// The seed tables of the blank store (data/seed/*.csv), checked against every
// constraint the program puts on them: ids and regions, the Big 12
// divisions, InjuryList, name pools and high schools, conference sizes and
// the limits of the dynasty's tables, automatic bids and Cities, schedule
// types, divisions and SchedGroup, challenges, Area, NBASetup.
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "store/blank_store.h"
#include "store/store.h"
#include "support/temp_folder.h"

namespace courtmere {
namespace {

const std::vector<std::string> kRegions = {"West", "Midwest", "East", "South"};
const std::set<std::string> kStates = {
    "AL", "AK", "AZ", "AR", "CA", "CO", "CT", "DE", "DC", "FL", "GA", "HI", "ID",
    "IL", "IN", "IA", "KS", "KY", "LA", "ME", "MD", "MA", "MI", "MN", "MS", "MO",
    "MT", "NE", "NV", "NH", "NJ", "NM", "NY", "NC", "ND", "OH", "OK", "OR", "PA",
    "RI", "SC", "SD", "TN", "TX", "UT", "VT", "VA", "WA", "WV", "WI", "WY"};

// The conference schedule types: the number of schools and the divisions each uses.
struct SchedTypeRule {
  int teams;
  std::set<std::string> divisions;  // {"None"} for a type without divisions
  bool pairsBySchedGroup;           // slots are filled "Order by SchedGroup ..."
};
const std::map<std::string, SchedTypeRule> kSchedTypes = {
    {"8", {8, {"None"}, true}},
    {"9", {9, {"None"}, false}},
    {"10", {10, {"None"}, true}},
    {"11", {11, {"None"}, false}},
    {"12A", {12, {"None"}, true}},
    {"12B", {12, {"East", "West"}, true}},
    {"12C", {12, {"North", "South"}, true}},
    {"13", {13, {"None"}, false}},
    {"14A", {14, {"East", "West"}, false}},
    {"14B", {14, {"National", "American"}, false}},
};

// One blank store for the whole suite: the seed rows never change in play.
class SeedDataTest : public ::testing::Test {
 protected:
  static void SetUpTestSuite() {
    folder_ = new testing::TempFolder();
    BuildBlankStore(*folder_ / "mereball.dat");
    store_ = new Store(*folder_ / "mereball.dat");
  }
  static void TearDownTestSuite() {
    delete store_;
    delete folder_;
    store_ = nullptr;
    folder_ = nullptr;
  }

  static Store& S() { return *store_; }
  static int64_t Int(const std::string& sql) { return S().ScalarInt(sql).value_or(-1); }
  static std::vector<std::string> Texts(const std::string& sql) {
    std::vector<std::string> out;
    for (Rows rows = S().Query(sql); rows.Next();) out.push_back(rows.Text(0));
    return out;
  }

  // Both tables of schools, with the table each row came from.
  static constexpr const char* kAllSchools =
      "SELECT SchoolName, State, Location, Area, Population, Colors, ArenaCapacity, Conference, "
      "Region, Division, Prestige, SchedGroup, 'TeamSetup' AS Source FROM TeamSetup "
      "UNION ALL SELECT SchoolName, State, Location, Area, Population, Colors, ArenaCapacity, "
      "Conference, Region, Division, Prestige, SchedGroup, 'LowLeagueSetup' FROM LowLeagueSetup";

  // Conference -> (Id, SchedType).
  static std::map<std::string, std::pair<int, std::string>> Conferences() {
    std::map<std::string, std::pair<int, std::string>> out;
    for (Rows rows = S().Query("SELECT Conference, Id, SchedType FROM LeagueSetup"); rows.Next();) {
      out[rows.Text(0)] = {rows.Int(1), rows.Text(2)};
    }
    return out;
  }
  static std::string SchoolTable(int leagueId) {
    return leagueId < 7 ? "TeamSetup" : "LowLeagueSetup";
  }
  // Sizes of the low conferences, largest first.
  static std::vector<int> LowSizesDescending() {
    std::vector<int> sizes;
    for (Rows rows =
             S().Query("SELECT COUNT(*) FROM LowLeagueSetup GROUP BY Conference ORDER BY 1 DESC");
         rows.Next();) {
      sizes.push_back(rows.Int(0));
    }
    return sizes;
  }

  static testing::TempFolder* folder_;
  static Store* store_;
};

testing::TempFolder* SeedDataTest::folder_ = nullptr;
Store* SeedDataTest::store_ = nullptr;

// An id column holds 1, 2, ..., n with no gap and no repeat.
void ExpectIdsFromOne(Store& s, const std::string& table, const std::string& id) {
  const int64_t n = s.RowCount(table);
  ASSERT_GT(n, 0) << table;
  EXPECT_EQ(*s.ScalarInt("SELECT MIN(" + id + ") FROM " + table), 1) << table;
  EXPECT_EQ(*s.ScalarInt("SELECT MAX(" + id + ") FROM " + table), n) << table;
  EXPECT_EQ(*s.ScalarInt("SELECT COUNT(DISTINCT " + id + ") FROM " + table), n) << table;
}

// six fixed conferences, Id 1 to 6; the low ones above 6.
TEST_F(SeedDataTest, LeagueSetupHasTheSixFixedConferencesThenTheLowOnes) {
  ExpectIdsFromOne(S(), "LeagueSetup", "Id");
  EXPECT_EQ(Texts("SELECT Conference FROM LeagueSetup WHERE Id < 7 ORDER BY Id"),
            (std::vector<std::string>{"ACC", "Big East", "Big Ten", "Big 12", "Pac-10", "SEC"}));
  EXPECT_EQ(*S().ScalarText("SELECT SchedType FROM LeagueSetup WHERE Id = 4"), "12C");
  EXPECT_EQ(Int("SELECT COUNT(*) FROM LeagueSetup WHERE Conference = 'MVC' AND Id > 6"), 1);
  EXPECT_EQ(Int("SELECT COUNT(DISTINCT Conference) FROM LeagueSetup"), S().RowCount("LeagueSetup"));
  EXPECT_EQ(Int("SELECT COUNT(*) FROM LeagueSetup WHERE Conference IS NULL OR Conference = ''"), 0);
  // Conference names are compared in quotes by the program's statements and
  // stand beside "F" and "POY" in award types.
  EXPECT_EQ(Int("SELECT COUNT(*) FROM LeagueSetup WHERE Conference IN ('National', 'week', "
                "'NationalPOY', 'NationalF', 'FirstAA', 'SecondAA', 'ThirdAA')"),
            0);
}

// Every SchedType is a known template that matches its conference's size;
// a school's Division is one its type uses, and a two-division type splits
// its schools evenly (the division tables have 6 or 7 slots).
TEST_F(SeedDataTest, EverySchedTypeMatchesItsConferenceSizeAndDivisions) {
  for (const auto& [conference, idType] : Conferences()) {
    const auto& [id, type] = idType;
    ASSERT_TRUE(kSchedTypes.count(type)) << conference << " has schedule type " << type;
    const SchedTypeRule& rule = kSchedTypes.at(type);
    std::map<std::string, int> count;
    int size = 0;
    for (Rows rows = S().Query("SELECT Division, COUNT(*) FROM " + SchoolTable(id) +
                                   " WHERE Conference = ? GROUP BY Division",
                               conference);
         rows.Next();) {
      count[rows.Text(0)] = rows.Int(1);
      size += rows.Int(1);
      EXPECT_TRUE(rule.divisions.count(rows.Text(0)))
          << conference << " has a school in division '" << rows.Text(0) << "'";
    }
    EXPECT_EQ(size, rule.teams) << conference << " (" << type << ")";
    if (rule.divisions.size() == 2) {
      for (const std::string& division : rule.divisions) {
        EXPECT_EQ(count[division], rule.teams / 2) << conference << " " << division;
      }
    }
  }
  // Fixed conferences' schools stand in TeamSetup, the others in LowLeagueSetup.
  EXPECT_EQ(Int("SELECT COUNT(*) FROM TeamSetup WHERE Conference NOT IN "
                "(SELECT Conference FROM LeagueSetup WHERE Id < 7)"),
            0);
  EXPECT_EQ(Int("SELECT COUNT(*) FROM LowLeagueSetup WHERE Conference NOT IN "
                "(SELECT Conference FROM LeagueSetup WHERE Id > 6)"),
            0);
}

// teams of a SchedGroup come next to each other in the slot order.
// The types filled "Order by SchedGroup" pair their slots (1, 2), (3, 4), ...
// as travel partners, so each group there holds exactly two schools of its
// division; every order of the table must keep the pairs on those slots.
TEST_F(SeedDataTest, SchedGroupsPairTheSlotsOfTheirTemplates) {
  const std::vector<std::string> orders = {
      " ORDER BY SchedGroup ASC, SchoolName ASC", " ORDER BY SchedGroup DESC, SchoolName DESC",
      " ORDER BY SchedGroup ASC, SchoolName DESC", " ORDER BY SchedGroup DESC, SchoolName ASC"};
  for (const auto& [conference, idType] : Conferences()) {
    const auto& [id, type] = idType;
    const SchedTypeRule& rule = kSchedTypes.at(type);
    for (const std::string& division : rule.divisions) {
      const std::string where = " WHERE Conference = ? AND Division = ?";
      EXPECT_EQ(*S().ScalarInt("SELECT COUNT(*) FROM " + SchoolTable(id) + where +
                                   " AND (SchedGroup IS NULL OR SchedGroup = '')",
                               conference, division),
                0)
          << conference;
      for (Rows rows = S().Query("SELECT SchedGroup, COUNT(*) FROM " + SchoolTable(id) + where +
                                     " GROUP BY SchedGroup",
                                 conference, division);
           rows.Next();) {
        if (rule.pairsBySchedGroup) {
          EXPECT_EQ(rows.Int(1), 2) << conference << " group " << rows.Text(0);
        } else {
          EXPECT_LE(rows.Int(1), 2) << conference << " group " << rows.Text(0);
        }
      }
      if (!rule.pairsBySchedGroup) continue;
      for (const std::string& order : orders) {
        std::vector<std::string> groups;
        for (Rows rows = S().Query("SELECT SchedGroup FROM " + SchoolTable(id) + where + order,
                                   conference, division);
             rows.Next();) {
          groups.push_back(rows.Text(0));
        }
        for (size_t slot = 0; slot + 1 < groups.size(); slot += 2) {
          EXPECT_EQ(groups[slot], groups[slot + 1])
              << conference << " slots " << slot + 1 << " and " << slot + 2 << order;
        }
      }
    }
  }
}

// the limits hold with any three low conferences chosen.
TEST_F(SeedDataTest, TheLimitsHoldWhateverThreeConferencesAreChosen) {
  const int64_t fixedSchools = S().RowCount("TeamSetup");
  const std::vector<int> low = LowSizesDescending();
  ASSERT_GE(low.size(), 3u);
  const int64_t largestThree = low[0] + low[1] + low[2];
  const int64_t firstDivisionMost = fixedSchools + largestThree;
  EXPECT_LE(firstDivisionMost, 120) << "Team and the in-memory lists hold 120";
  EXPECT_LE(low[0], 14) << "at most 14 schools a conference";
  // The background field draws up to 110 schools from the conferences left over.
  EXPECT_GE(S().RowCount("LowLeagueSetup") - largestThree, 110);
  // The rating index holds 50 conferences and 250 teams: the dynasty's Team and
  // ScrubTeam rows, every conference of LeagueSetup among them.
  EXPECT_LE(S().RowCount("LeagueSetup"), 50);
  EXPECT_LE(firstDivisionMost + 110, 250);
  // The NCT field is 33 at-large teams and one champion of each conference: the
  // nine leagues' tournament winners and one background team of every other low
  // conference, 31 in all to make 64.
  const int64_t lowConferences = Int("SELECT COUNT(*) FROM LeagueSetup WHERE Id > 6");
  EXPECT_EQ(9 + (lowConferences - 3), 31);
}

// the school rows as the program and its screens read them.
TEST_F(SeedDataTest, SchoolRowsAreWellFormed) {
  std::set<std::string> names;
  for (Rows rows = S().Query(kAllSchools); rows.Next();) {
    const std::string name = rows.Text("SchoolName");
    SCOPED_TRACE(name);
    EXPECT_TRUE(names.insert(name).second) << "SchoolName is the key of every school";
    ASSERT_GE(name.size(), 3u);
    EXPECT_EQ(name, name.substr(name.find_first_not_of(' '), name.find_last_not_of(' ') + 1));
    // The preseason bracket reads a side's first and last character as a seed
    // and a "-" in second place as an open pairing.
    EXPECT_FALSE(isdigit(static_cast<unsigned char>(name.front())));
    EXPECT_FALSE(isdigit(static_cast<unsigned char>(name.back())));
    EXPECT_NE(name[1], '-');
    // A recruit's Team holds a region name; a fired coach's "Fired-<school>".
    EXPECT_EQ(std::count(kRegions.begin(), kRegions.end(), name), 0);
    EXPECT_NE(name.rfind("Fired-", 0), 0u);
    EXPECT_NE(name.rfind("Looking", 0), 0u);
    for (char c : name) EXPECT_TRUE(c >= 32 && c < 127) << "plain ASCII";

    EXPECT_TRUE(kStates.count(rows.Text("State"))) << rows.Text("State");
    EXPECT_FALSE(rows.Text("Location").empty());
    EXPECT_FALSE(rows.Text("Colors").empty());
    EXPECT_FALSE(rows.Text("Area").empty());
    EXPECT_GT(rows.Int("Population"), 0);
    EXPECT_GE(rows.Int("ArenaCapacity"), 500);
    EXPECT_LE(rows.Int("ArenaCapacity"), 40000);
    EXPECT_GE(rows.Int("Prestige"), 1);
    EXPECT_LE(rows.Int("Prestige"), 100);
    EXPECT_EQ(std::count(kRegions.begin(), kRegions.end(), rows.Text("Region")), 1)
        << rows.Text("Region");
  }
  for (const char* t : {"TeamSetup", "LowLeagueSetup"}) {
    EXPECT_EQ(Int(std::string("SELECT COUNT(*) FROM ") + t +
                  " WHERE typeof(Population) <> 'integer' OR typeof(ArenaCapacity) <> 'integer'"
                  " OR typeof(Prestige) <> 'integer'"),
              0);
  }
  // Records.Type holds a SchoolName, a Conference or "National".
  EXPECT_EQ(Int(std::string("SELECT COUNT(*) FROM (") + kAllSchools +
                ") WHERE SchoolName IN (SELECT Conference FROM LeagueSetup) "
                "OR SchoolName = 'National'"),
            0);
  // Names with apostrophes stand as they are.
  EXPECT_EQ(Int("SELECT COUNT(*) FROM TeamSetup WHERE SchoolName = 'St. John''s'"), 1);
  EXPECT_EQ(Int("SELECT COUNT(*) FROM LowLeagueSetup WHERE SchoolName = 'Saint Mary''s'"), 1);
}

// the prestige bands; every band of the selection screens has schools,
// and the fixed conferences stand above the low ones.
TEST_F(SeedDataTest, PrestigeSpansTheBands) {
  const std::vector<std::pair<int, int>> bands = {{75, 100}, {65, 74}, {60, 64}, {50, 59},
                                                  {40, 49},  {30, 39}, {1, 29}};
  for (const auto& [lo, hi] : bands) {
    EXPECT_GT(Int("SELECT COUNT(*) FROM (" + std::string(kAllSchools) +
                  ") WHERE Prestige BETWEEN " + std::to_string(lo) + " AND " + std::to_string(hi)),
              0)
        << lo << " to " << hi;
  }
  EXPECT_GT(*S().ScalarDouble("SELECT AVG(Prestige) FROM TeamSetup"),
            *S().ScalarDouble("SELECT AVG(Prestige) FROM LowLeagueSetup") + 15);
}

// The seed already holds the Big 12 divisions the store upgrade sets: the
// areas NEMO, KS, CO and IA in the North, OK and TX in the South, six each.
TEST_F(SeedDataTest, TheBig12DivisionsFollowTheirAreas) {
  std::map<std::string, int> count;
  for (Rows rows = S().Query(
           "SELECT SchoolName, Area, Division FROM TeamSetup WHERE Conference = 'Big 12'");
       rows.Next();) {
    const std::string area = rows.Text(1);
    const bool south = area == "OK" || area == "TX";
    ASSERT_TRUE(south || area == "NEMO" || area == "KS" || area == "CO" || area == "IA")
        << rows.Text(0) << " Area " << area;
    EXPECT_EQ(rows.Text(2), south ? "South" : "North") << rows.Text(0);
    ++count[rows.Text(2)];
  }
  EXPECT_EQ(count, (std::map<std::string, int>{{"North", 6}, {"South", 6}}));
}

// The regional high schools, and every school's Area
// among the high schools of its region so that the home-area rules can fire.
TEST_F(SeedDataTest, HighSchoolsCoverEveryRegionAndEverySchoolsArea) {
  for (const std::string& region : kRegions) {
    EXPECT_GE(*S().ScalarInt("SELECT COUNT(*) FROM HighSchool WHERE Region = ?", region), 150)
        << region;
  }
  EXPECT_EQ(Int("SELECT COUNT(*) FROM HighSchool WHERE Region NOT IN "
                "('West', 'Midwest', 'East', 'South')"),
            0);
  EXPECT_EQ(Int("SELECT COUNT(*) FROM HighSchool WHERE HighSchool IS NULL OR HighSchool = '' "
                "OR HomeTown IS NULL OR HomeTown = '' OR Area IS NULL OR Area = ''"),
            0);
  // HomeTown & "," & State: the last two characters are the state.
  for (const std::string& state : Texts("SELECT DISTINCT State FROM HighSchool")) {
    EXPECT_TRUE(kStates.count(state)) << state;
  }
  EXPECT_EQ(Int("SELECT COUNT(*) FROM (SELECT Area FROM HighSchool GROUP BY Area "
                "HAVING COUNT(DISTINCT Region) > 1)"),
            0)
      << "an Area belongs to one region";
  for (Rows rows = S().Query(std::string("SELECT SchoolName, Region, Area FROM (") + kAllSchools +
                             ") s WHERE NOT EXISTS (SELECT 1 FROM HighSchool h WHERE "
                             "h.Region = s.Region AND h.Area = s.Area)");
       rows.Next();) {
    ADD_FAILURE() << rows.Text(0) << ": no high school of area " << rows.Text(2) << " in the "
                  << rows.Text(1);
  }
  // Each area a school uses yields recruits from several towns.
  EXPECT_EQ(
      Int(std::string("SELECT COUNT(*) FROM (SELECT DISTINCT Region, Area FROM (") + kAllSchools +
          ")) s WHERE (SELECT COUNT(DISTINCT HomeTown) FROM HighSchool h "
          "WHERE h.Region = s.Region AND h.Area = s.Area) < 5"),
      0);
}

// the name pools, drawn by Id with no gap.
TEST_F(SeedDataTest, NamePoolsRunFromOneWithoutGaps) {
  ExpectIdsFromOne(S(), "FName", "Id");
  ExpectIdsFromOne(S(), "LName", "Id");
  EXPECT_GE(S().RowCount("FName"), 1000);
  EXPECT_GE(S().RowCount("LName"), 2000);
  for (const auto& [table, column] : std::vector<std::pair<std::string, std::string>>{
           {"FName", "FirstName"}, {"LName", "LastName"}}) {
    EXPECT_EQ(Int("SELECT COUNT(DISTINCT " + column + ") FROM " + table), S().RowCount(table))
        << table << " names repeat";
    for (const std::string& name : Texts("SELECT " + column + " FROM " + table)) {
      ASSERT_GE(name.size(), 2u) << table;
      EXPECT_TRUE(isupper(static_cast<unsigned char>(name[0]))) << name;
      for (char c : name) {
        EXPECT_TRUE(isalpha(static_cast<unsigned char>(c)) || c == '\'' || c == '-') << name;
      }
    }
  }
  // Every drawable Id finds a row (player creation draws 1 to rows - 1).
  EXPECT_EQ(S().FirstName(1), "Michael");
  EXPECT_FALSE(S().LastName(static_cast<int>(S().RowCount("LName")) - 1).empty());
}

// 60 injuries looked up by Roll(60); the 29 professional teams of the
// draft order.
TEST_F(SeedDataTest, InjuryListAndNBASetupHoldTheirRows) {
  EXPECT_EQ(S().RowCount("NBASetup"), 29);
  ExpectIdsFromOne(S(), "NBASetup", "id");
  EXPECT_EQ(Int("SELECT COUNT(DISTINCT Team) FROM NBASetup WHERE Team <> ''"), 29);
  EXPECT_EQ(S().RowCount("InjuryList"), 60);
  ExpectIdsFromOne(S(), "InjuryList", "InjuryID");
  EXPECT_EQ(Int("SELECT COUNT(DISTINCT InjuryName) FROM InjuryList"), 60);
  EXPECT_EQ(Int("SELECT COUNT(*) FROM InjuryList WHERE WeeksOut < 1 OR WeeksOut > 52 "
                "OR typeof(WeeksOut) <> 'integer'"),
            0);
  // Health holds the name; "Good" is the healthy player.
  EXPECT_EQ(Int("SELECT COUNT(*) FROM InjuryList WHERE InjuryName IS NULL OR InjuryName = '' "
                "OR InjuryName = 'Good'"),
            0);
  // Mostly short injuries, a few that end a 20-week season.
  EXPECT_GE(Int("SELECT COUNT(*) FROM InjuryList WHERE WeeksOut <= 2"), 20);
  EXPECT_GE(Int("SELECT COUNT(*) FROM InjuryList WHERE WeeksOut >= 20"), 1);
}

// three sites a region a year, and a Final Four site left over.
TEST_F(SeedDataTest, CitiesGiveEveryRegionItsSitesAndAFinalFour) {
  ExpectIdsFromOne(S(), "Cities", "Id");
  for (const std::string& region : kRegions) {
    EXPECT_GE(*S().ScalarInt("SELECT COUNT(*) FROM Cities WHERE Region = ?", region), 12)
        << region << ": three sites a year with room to rotate";
  }
  EXPECT_EQ(Int("SELECT COUNT(*) FROM Cities WHERE Region NOT IN "
                "('West', 'Midwest', 'East', 'South')"),
            0);
  EXPECT_EQ(Int("SELECT COUNT(*) FROM Cities WHERE Second <> 0 OR Regional <> 0 OR Final <> 0"), 0);
  EXPECT_EQ(Int("SELECT COUNT(*) FROM Cities WHERE PotFinal NOT IN (0, 1)"), 0);
  // The twelve first-weekend and regional sites can't use up every possible final.
  EXPECT_GE(Int("SELECT COUNT(*) FROM Cities WHERE PotFinal = 1"), 13);
  for (const std::string& state : Texts("SELECT DISTINCT State FROM Cities")) {
    EXPECT_TRUE(kStates.count(state)) << state;
  }
  EXPECT_EQ(Int("SELECT COUNT(*) FROM (SELECT City, State FROM Cities GROUP BY City, State "
                "HAVING COUNT(*) > 1)"),
            0);
}

// a challenge pairs two fixed conferences (the chosen ones are
// inserted without Challenge) once, on a day the calendar plays.
TEST_F(SeedDataTest, ChallengesPairFixedConferencesOnAPlayedDay) {
  EXPECT_EQ(Int("SELECT COUNT(*) FROM LeagueSetup WHERE Id > 6 AND Challenge <> 0"), 0);
  int challenges = 0;
  for (Rows rows =
           S().Query("SELECT Id, Challenge, Week, Day FROM LeagueSetup WHERE Challenge > 0");
       rows.Next();) {
    ++challenges;
    const int id = rows.Int(0), partner = rows.Int(1), week = rows.Int(2);
    const std::string day = rows.Text(3);
    SCOPED_TRACE(id);
    EXPECT_LE(id, 6);
    EXPECT_GE(partner, 1);
    EXPECT_LE(partner, 6);
    EXPECT_NE(partner, id);
    EXPECT_NE(*S().ScalarInt("SELECT Challenge FROM LeagueSetup WHERE Id = ?", partner), id)
        << "a pair is named once, or its games are made twice";
    // week 1 plays Thursday to Sunday; weeks 2 to 4 and 6 to 15
    // Thursday and Saturday; week 5 plays nothing.
    const bool played = (week == 1 && (day == "Thursday" || day == "Friday" || day == "Saturday" ||
                                       day == "Sunday")) ||
                        (((week >= 2 && week <= 4) || (week >= 6 && week <= 15)) &&
                         (day == "Thursday" || day == "Saturday"));
    EXPECT_TRUE(played) << "week " << week << " " << day;
  }
  EXPECT_GE(challenges, 1);
}

}  // namespace
}  // namespace courtmere
