#include "store/store.h"

#include <SQLiteCpp/Exception.h>
#include <gtest/gtest.h>

#include <fstream>

#include "store/blank_store.h"
#include "store/store_error.h"
#include "support/temp_folder.h"

namespace courtmere {
namespace {

class StoreTest : public ::testing::Test {
 protected:
  void SetUp() override {
    BuildBlankStore(dir_ / "mereball.dat");
    store_ = std::make_unique<Store>(dir_ / "mereball.dat");
  }
  testing::TempFolder dir_;
  std::unique_ptr<Store> store_;
};

TEST_F(StoreTest, AFloatInAnIntegerColumnIsAnError) {
  EXPECT_THROW(store_->Exec("UPDATE Config SET CurrWeek = ? WHERE IdConfig = 0", 70.5),
               SQLite::Exception);
  EXPECT_THROW(store_->Append("Trainer", {{"Name", "A. Smith"}, {"Ability", 70.5}}),
               SQLite::Exception);
  EXPECT_EQ(store_->RowCount("Trainer"), 0);
  // A float column takes the value as it is.
  store_->Append("Team", {{"SchoolName", "Duke"}, {"Prestige", 70.5}});
  EXPECT_DOUBLE_EQ(*store_->ScalarDouble("SELECT Prestige FROM Team"), 70.5);
}

TEST_F(StoreTest, NamesWithApostrophesRoundTrip) {
  const std::string school = "St. John's";
  const std::string coach = "Pat O'Brien";
  store_->Append("Team", {{"SchoolName", school}, {"Conference", "Big East"}});
  store_->Append("Coach", {{"Name", coach}, {"Team", school}});
  EXPECT_EQ(*store_->ScalarText("SELECT Name FROM Coach WHERE Team = ?", school), coach);
  EXPECT_EQ(
      store_->Exec("UPDATE Team SET Colors = ? WHERE SchoolName = ?", "Red 'n' White", school), 1);
  EXPECT_EQ(*store_->ScalarText("SELECT Colors FROM Team WHERE SchoolName = ?", school),
            "Red 'n' White");
}

TEST_F(StoreTest, RowsReadForwardAndNullsReadAsZeroOrEmpty) {
  for (int i = 1; i <= 3; ++i) store_->Append("Trainer", {{"Id", i}, {"Ability", i * 10}});
  int sum = 0, count = 0;
  for (Rows rows = store_->Query("SELECT Id, Ability, Name FROM Trainer ORDER BY Id");
       rows.Next();) {
    sum += rows.Int("Ability");
    EXPECT_TRUE(rows.IsNull(2));
    EXPECT_EQ(rows.Text(2), "");
    ++count;
  }
  EXPECT_EQ(count, 3);
  EXPECT_EQ(sum, 60);
  EXPECT_FALSE(store_->ScalarInt("SELECT Id FROM Trainer WHERE Id = ?", 99).has_value());
}

TEST_F(StoreTest, ACachedQueryCanRunInsideItsOwnReader) {
  for (int i = 1; i <= 3; ++i) store_->Append("Trainer", {{"Id", i}, {"Ability", i}});
  const char* sql = "SELECT Id FROM Trainer WHERE Id >= ? ORDER BY Id";
  int pairs = 0;
  for (Rows outer = store_->Query(sql, 1); outer.Next();) {
    for (Rows inner = store_->Query(sql, outer.Int(0)); inner.Next();) ++pairs;
  }
  EXPECT_EQ(pairs, 3 + 2 + 1);
  // The cached statement is free again and starts from its first row.
  Rows again = store_->Query(sql, 2);
  ASSERT_TRUE(again.Next());
  EXPECT_EQ(again.Int(0), 2);
}

TEST_F(StoreTest, TransactionsRollBackUnlessCommittedAndNest) {
  {
    Store::Transaction tx(*store_);
    store_->Append("Trainer", {{"Id", 1}});
  }
  EXPECT_EQ(store_->RowCount("Trainer"), 0);
  {
    Store::Transaction outer(*store_);
    store_->Append("Trainer", {{"Id", 1}});
    {
      Store::Transaction inner(*store_);
      store_->Append("Trainer", {{"Id", 2}});
    }  // the inner part is undone alone
    {
      Store::Transaction inner(*store_);
      store_->Append("Trainer", {{"Id", 3}});
      inner.Commit();
    }
    outer.Commit();
  }
  EXPECT_EQ(store_->RowCount("Trainer"), 2);
  EXPECT_FALSE(store_->ScalarInt("SELECT Id FROM Trainer WHERE Id = 2").has_value());
}

TEST_F(StoreTest, SeeksNamesByIdAndKnowsItsTablesAndColumns) {
  store_->Exec("DELETE FROM FName");
  store_->Exec("DELETE FROM LName");
  store_->Append("FName", {{"Id", 1}, {"FirstName", "Marcus"}});
  store_->Append("LName", {{"Id", 1}, {"LastName", "O'Neal"}});
  EXPECT_EQ(store_->FirstName(1), "Marcus");
  EXPECT_EQ(store_->LastName(1), "O'Neal");
  EXPECT_EQ(store_->FirstName(2), "");
  EXPECT_TRUE(store_->TableExists("League9Schedule"));
  EXPECT_FALSE(store_->TableExists("League10Schedule"));
  EXPECT_TRUE(store_->ColumnExists("Records", "FGPercentSeasonYear"));
  EXPECT_FALSE(store_->ColumnExists("Records", "PGPercentSeasonYear"));
}

TEST(StoreOpenTest, RefusesMissingAndNonDatabaseFiles) {
  testing::TempFolder dir;
  EXPECT_THROW(Store(dir / "missing.dat"), StoreError);
  std::ofstream(dir / "junk.dat") << std::string(5000, 'x');
  EXPECT_THROW(Store(dir / "junk.dat"), StoreError);
}

}  // namespace
}  // namespace courtmere
