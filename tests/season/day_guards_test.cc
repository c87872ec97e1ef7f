// Sim Day's guards: each refusal's message, their order, and the two
// questions with their days. A refused press changes nothing and the guard
// fires again on the next press until it is satisfied.
#include "season/day_guards.h"

#include <gtest/gtest.h>

#include "season/day_step.h"
#include "season/recruiting_week.h"
#include "season_fixture.h"

namespace courtmere::testing {
namespace {

constexpr const char* kPointsQuestion =
    "You still have some recruiting points left, are you sure you wish to sim games and advance "
    "to the next week?";
constexpr const char* kScholarshipQuestion =
    "Scholarships must be assigned by the end of week 15. Do you wish to proceed without "
    "selecting all of your Scholarship players? (This decision cannot be reversed)";
constexpr const char* kChartMessage =
    "Please set the depth chart for St. John's before trying to sim this day.";
constexpr const char* kUnfitMessage =
    "You have a redshirt, suspended, injured or inactive player listed in your depth chart. "
    "Please correct this before simming games.";
constexpr const char* kOffenceMessage =
    "Please assign an offensive coach for St. John's before trying to sim this day. You can do "
    "this by going to Staff, view coaches and selecting Change Roles.";
constexpr const char* kDefenceMessage =
    "Please assign a defensive coach for St. John's before trying to sim this day. You can do "
    "this by going to Staff, view coaches and selecting Change Roles.";

// A recruiting library whose user has points left.
class PointsLeftOver : public RecruitingWeek {
 public:
  explicit PointsLeftOver(int points) : points_(points) {}
  bool Active() const override { return true; }
  int PointsLeft(Session&) override { return points_; }

 private:
  int points_;
};

class DayGuards : public SeasonFixture {
 protected:
  // Presses Sim Day and expects a refusal that left the store as it was.
  void ExpectRefused(const std::string& message) {
    const std::string before = DumpStore(store());
    const size_t shown = ui().Messages().size();
    EXPECT_EQ(SimDay(run()), DayOutcome::kStopped);
    ASSERT_EQ(ui().Messages().size(), shown + 1);
    EXPECT_EQ(ui().Messages().back(), message);
    EXPECT_TRUE(DumpStore(store()) == before);
  }
  int ChartMan(const char* place) {
    return static_cast<int>(*store().ScalarInt(
        std::string("SELECT ") + place + " FROM Team WHERE SchoolName = ?", kUserSchool));
  }
  void DropCoachRole(const char* role) {
    store().Exec(std::string("UPDATE Coach SET ") + role + " = 0 WHERE Team = ?", kUserSchool);
  }
  void GiveOffence() {
    store().Exec(
        "UPDATE Coach SET OffPoints = 1 WHERE Id = (SELECT min(Id) FROM Coach WHERE Team = ?)",
        kUserSchool);
  }
};

TEST_F(DayGuards, AnEmptyPlaceOfTheChartOrNoInactiveManStopsTheDay) {
  for (const char* place : {"SG2", "C3", "Inactive"}) {
    const int man = ChartMan(place);
    store().Exec(std::string("UPDATE Team SET ") + place + " = 0 WHERE SchoolName = ?",
                 kUserSchool);
    ExpectRefused(kChartMessage);
    ExpectRefused(kChartMessage);  // and again on the next press
    store().Exec(std::string("UPDATE Team SET ") + place + " = ? WHERE SchoolName = ?", man,
                 kUserSchool);
  }
  EXPECT_EQ(SimDay(run()), DayOutcome::kPlayed);
}

TEST_F(DayGuards, AnUnfitManInTheChartStopsTheDayButTheInactiveManMayBeUnfit) {
  const int man = ChartMan("PF2");
  for (const char* change : {"Redshirt = 1", "Inactive = 1", "Suspended = 1", "Health = 'Knee'"}) {
    store().Exec(std::string("UPDATE Player SET ") + change + " WHERE Id = ?", man);
    ExpectRefused(kUnfitMessage);
    store().Exec(
        "UPDATE Player SET Redshirt = 0, Inactive = 0, Suspended = 0, Health = 'Good' WHERE Id = ?",
        man);
  }
  store().Exec("UPDATE Player SET Health = 'Knee', Suspended = 1 WHERE Id = ?",
               ChartMan("Inactive"));
  EXPECT_EQ(SimDay(run()), DayOutcome::kPlayed);
}

// The coaches are checked after the chart, the offence first, and each
// missing coach has its message.
TEST_F(DayGuards, CoachesAreCheckedAfterTheChartOffenceFirst) {
  DropCoachRole("OffPoints");
  DropCoachRole("DefPoints");
  const int man = ChartMan("PG1");
  store().Exec("UPDATE Team SET PG1 = 0 WHERE SchoolName = ?", kUserSchool);
  ExpectRefused(kChartMessage);
  store().Exec("UPDATE Team SET PG1 = ? WHERE SchoolName = ?", man, kUserSchool);
  ExpectRefused(kOffenceMessage);
  GiveOffence();
  ExpectRefused(kDefenceMessage);
}

TEST_F(DayGuards, PointsQuestionOnlyOnSaturdaysBeforeWeekThirteenWithPointsLeft) {
  PointsLeftOver points(25);
  run().recruiting = &points;
  GoTo(3, "Thursday");
  EXPECT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_TRUE(ui().Questions().empty());
  // Saturday: No stops the step with nothing changed.
  ui().QueueAnswer(false);
  const std::string before = DumpStore(store());
  EXPECT_EQ(SimDay(run()), DayOutcome::kStopped);
  ASSERT_EQ(ui().Questions().size(), 1u);
  EXPECT_EQ(ui().Questions().back(), kPointsQuestion);
  EXPECT_TRUE(DumpStore(store()) == before);
  // Yes lets the later guards speak.
  DropCoachRole("OffPoints");
  ExpectRefused(kOffenceMessage);
  EXPECT_EQ(ui().Questions().size(), 2u);
  // No question with no points left, nor from week 13.
  GiveOffence();
  PointsLeftOver none(0);
  run().recruiting = &none;
  EXPECT_EQ(SimDay(run()), DayOutcome::kPlayed);
  run().recruiting = &points;
  GoTo(13, "Saturday");
  EXPECT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(ui().Questions().size(), 2u);
}

TEST_F(DayGuards, ScholarshipQuestionOnTheSaturdayOfWeekFifteenOnly) {
  store().Exec("UPDATE Team SET Scholarships = 2 WHERE SchoolName = ?", kUserSchool);
  GoTo(15, "Thursday");
  EXPECT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_TRUE(ui().Questions().empty());
  ui().QueueAnswer(false);
  EXPECT_EQ(SimDay(run()), DayOutcome::kStopped);
  ASSERT_EQ(ui().Questions().size(), 1u);
  EXPECT_EQ(ui().Questions().back(), kScholarshipQuestion);
  EXPECT_EQ(config().CurrDay, "Saturday");
  EXPECT_EQ(SimDay(run()), DayOutcome::kPlayed);
  EXPECT_EQ(config().CurrWeek, 16);
}

}  // namespace
}  // namespace courtmere::testing
