#include "store/seed_loader.h"

#include <gtest/gtest.h>

#include "store/blank_store.h"
#include "store/csv_reader.h"
#include "store/store.h"
#include "support/temp_folder.h"

namespace courtmere {
namespace {

class SeedLoaderTest : public ::testing::Test {
 protected:
  void SetUp() override {
    BuildBlankStore(dir_ / "s.dat");
    store_ = std::make_unique<Store>(dir_ / "s.dat");
    store_->Exec("DELETE FROM InjuryList");
    store_->Exec("DELETE FROM TeamSetup");
  }
  std::string Error(std::string_view table, std::string_view csv) {
    try {
      LoadSeedCsv(*store_, "data/seed/Test.csv", table, csv);
    } catch (const SeedError& e) {
      return e.what();
    }
    return "";
  }
  testing::TempFolder dir_;
  std::unique_ptr<Store> store_;
};

TEST_F(SeedLoaderTest, LoadsQuotedFieldsApostrophesAndNulls) {
  LoadSeedCsv(*store_, "data/seed/TeamSetup.csv", "TeamSetup",
              "SchoolName,State,Location,Population,Colors,Prestige\r\n"
              "St. John's,NY,\"Queens, New York\",2200000,\"Red \"\"and\"\" White\",71\r\n"
              "\n"
              "Saint Mary's,CA,Moraga,,,40\n");
  EXPECT_EQ(store_->RowCount("TeamSetup"), 2);
  Rows rows = store_->Query(
      "SELECT Location, Colors, Population FROM TeamSetup WHERE SchoolName = ?", "St. John's");
  ASSERT_TRUE(rows.Next());
  EXPECT_EQ(rows.Text(0), "Queens, New York");
  EXPECT_EQ(rows.Text(1), "Red \"and\" White");
  EXPECT_EQ(rows.Int(2), 2200000);
  EXPECT_TRUE(*store_->ScalarInt(
      "SELECT Population IS NULL FROM TeamSetup WHERE SchoolName = 'Saint Mary''s'"));
}

TEST_F(SeedLoaderTest, RefusesABadFileNamingFileAndLine) {
  EXPECT_EQ(
      Error("InjuryList", "InjuryID,InjuryName,WeeksOut\n1,Sprained Ankle,2\n2,Broken Wrist,6.5\n"),
      "data/seed/Test.csv line 3: WeeksOut must be a whole number, not \"6.5\"");
  EXPECT_EQ(Error("InjuryList", "InjuryID,InjuryName,WeeksOut\n1,Sprained Ankle\n"),
            "data/seed/Test.csv line 2: expected 3 fields, found 2");
  EXPECT_EQ(Error("InjuryList", "InjuryID,Injury,WeeksOut\n"),
            "data/seed/Test.csv line 1: the table InjuryList has no column Injury");
  EXPECT_EQ(Error("InjuryList", "InjuryID,InjuryName\n1,\"Torn ACL\n"),
            "data/seed/Test.csv line 2: unclosed quote");
  EXPECT_NE(Error("InjuryList", "InjuryID,InjuryName\n1,A\n1,B\n").find("line 3:"),
            std::string::npos)
      << "a duplicate key names its line";
  EXPECT_EQ(store_->RowCount("InjuryList"), 0) << "a refused file leaves no rows";
  EXPECT_EQ(Error("NoSuchTable", "Id\n1\n"),
            "data/seed/Test.csv line 1: there is no table NoSuchTable");
}

TEST_F(SeedLoaderTest, QuotedFieldsSpanLinesAndKeepLineNumbers) {
  auto records = ReadCsv("a,b\n\"x\ny\",2\n3,4\n");
  ASSERT_EQ(records.size(), 3u);
  EXPECT_EQ(records[1].fields[0], "x\ny");
  EXPECT_EQ(records[2].line, 4);
  EXPECT_EQ(SeedTableOf("data/seed/LowLeagueSetup.csv"), "LowLeagueSetup");
}

}  // namespace
}  // namespace courtmere
