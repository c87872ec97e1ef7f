// The coach's career on the desktop: the review screen, the job openings
// after the draft (Apply with its question, the entry closed out of its
// stage and after a move), and the staff screens' hire and fire.
#include <QAction>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QtTest>
#include <memory>

#include "app/coach_review_screen.h"
#include "app/grid_model.h"
#include "app/jobs_screen.h"
#include "app/main_window.h"
#include "app/staff_post_screen.h"
#include "app/staff_screen.h"
#include "app_dynasty.h"
#include "screen_probes.h"
#include "screenshots.h"
#include "store/config.h"

namespace courtmere::app {

using testing::AppDynasty;
using testing::Column;
using testing::Find;
using testing::Screenshot;

namespace {

void Choose(GridView* grid, int row) {
  grid->selectRow(row);
}

}  // namespace

class CareerTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    dynasty_ = std::make_unique<AppDynasty>();
    window_ = std::make_unique<MainWindow>(dynasty_->session());
    window_->show();
  }
  void cleanup() {
    dynasty_->session().quitting = true;
    window_.reset();
    dynasty_.reset();
  }

  void theReviewShowsTheCareerAndTheBoardsMood() {
    dynasty_->store().Exec(
        "UPDATE HeadCoach SET Seasons = 3, Wins = 61, Losses = 30, Rating = 62.5, "
        "Expectations = 1, Strikes = 2, PrestigeChange = -1.2");
    window_->RunGate();
    window_->RunCommand("mnuManagementPerformance");
    auto* review = Find<CoachReviewScreen>(*window_);
    QVERIFY(review);
    QCOMPARE(review->Caption(), QString("St. John's Head Coach Review"));
    QCOMPARE(review->Value("Overall Record:"), QString("61-30 (0.670)"));
    QCOMPARE(review->Value("Coach Rating:"), QString("B"));
    QCOMPARE(review->Value("Job Performance:"), QString("Two Strikes, one more and you are out!"));
    Screenshot(review->parentWidget(), "coach_review");
  }

  void theJobListOpensAfterTheDraftAndApplyMovesTheCoach() {
    Store& store = dynasty_->store();
    store.Exec("INSERT INTO Ranking (SchoolName) SELECT SchoolName FROM Team");
    store.Exec("UPDATE HeadCoach SET Rating = 60, Strikes = 1, Expectations = 2");
    window_->RunGate();
    QVERIFY(!window_->Entry("mnuProgressJobs")->isEnabled());  // in the season

    dynasty_->SetCalendar(kStageNbaDraft, 20);
    window_->RunGate();
    QVERIFY(window_->Entry("mnuProgressJobs")->isEnabled());
    window_->RunCommand("mnuProgressJobs");
    auto* jobs = Find<JobsScreen>(*window_);
    QVERIFY(jobs);
    QCOMPARE(Column(jobs->Grid(), 0), QStringList({"Clemson", QString::fromUtf8("Québec A&M")}));
    QCOMPARE(Column(jobs->Grid(), 3), QStringList({"Make the NCT", "Keep the games close"}));
    Screenshot(jobs->parentWidget(), "job_openings");

    dynasty_->ui().QueueAnswer(false);
    Choose(jobs->Grid(), 0);
    jobs->findChild<QPushButton*>("cmdApply")->click();
    QCOMPARE(HumanSchool(), std::string("St. John's"));
    jobs->findChild<QPushButton*>("cmdApply")->click();
    QCOMPARE(dynasty_->ui().Questions().back(),
             std::string("Are you sure you wish to switch jobs and join Clemson?"));
    QCOMPARE(HumanSchool(), std::string("Clemson"));
    QCOMPARE(dynasty_->session().humanSchool, std::string("Clemson"));
    QCOMPARE(store.ScalarInt("SELECT Strikes * 10 + Expectations FROM HeadCoach"), 4);
    QTRY_VERIFY(!Find<JobsScreen>(*window_));

    // The job command stops for the year.
    window_->RunCommand("mnuProgressJobs");
    QVERIFY(!Find<JobsScreen>(*window_));
    QCOMPARE(dynasty_->ui().Messages().back(),
             std::string("You have already changed jobs this year."));
  }

  void theHireScreenFiresHiresAndKeepsTheStaffWhole() {
    dynasty_->NameCoachRoles();
    dynasty_->SetCalendar(kStagePostTraining, 20);
    window_->RunGate();
    QVERIFY(window_->Entry("mnuStaffHireCoaches")->isEnabled());
    window_->RunCommand("mnuStaffHireCoaches");
    auto* staff = Find<StaffScreen>(*window_);
    QVERIFY(staff && staff->Candidates());
    QCOMPARE(staff->Grid()->Model()->rowCount(), 3);
    QCOMPARE(staff->Candidates()->Model()->rowCount(), 2);
    Screenshot(staff->parentWidget(), "staff_hire");

    Choose(staff->Candidates(), 0);
    staff->Hire();
    QCOMPARE(dynasty_->ui().Messages().back(),
             std::string("You already have three coaches. You need to fire one before hiring "
                         "another."));
    Choose(staff->Grid(), 0);  // the offence coach
    staff->Fire();
    QCOMPARE(staff->Grid()->Model()->rowCount(), 2);
    staff->Exit();
    QCOMPARE(dynasty_->ui().Messages().back(),
             std::string("You can't leave until you have three assistant coaches."));
    Choose(staff->Candidates(), 0);
    staff->Hire();
    QCOMPARE(staff->Grid()->Model()->rowCount(), 3);
    staff->Exit();
    QCOMPARE(dynasty_->ui().Messages().back(),
             std::string("Please change your coaching Roles so that you have one assistant in "
                         "charge of offense and one in charge of defense."));
    QVERIFY(Find<StaffScreen>(*window_));
  }

  void theScoutsPostAndTheViewModes() {
    dynasty_->SetCalendar(kStagePostTraining, 20);
    window_->RunGate();
    window_->RunCommand("mnuStaffHireScout");
    auto* scout = Find<StaffPostScreen>(*window_);
    QVERIFY(scout);
    QCOMPARE(scout->Caption(), QString("St. John's Head Scout"));
    QCOMPARE(scout->Candidates()->Model()->rowCount(), 2);
    Choose(scout->Grid(), 0);
    scout->Fire();
    QCOMPARE(scout->Grid()->Model()->rowCount(), 0);
    scout->Exit();
    QCOMPARE(dynasty_->ui().Messages().back(),
             std::string("You can't leave until you select a head scout."));
    Choose(scout->Candidates(), 1);
    scout->Hire();
    QCOMPARE(scout->Grid()->Model()->rowCount(), 1);
    Screenshot(scout->parentWidget(), "scout_hire");

    dynasty_->SetCalendar(kStageSeason, 3);
    window_->RunGate();
    QVERIFY(!window_->Entry("mnuStaffHireTrainer")->isEnabled());
    window_->RunCommand("mnuStaffHireTrainer");
    QCOMPARE(dynasty_->ui().Messages().back(),
             std::string("Staff can only be hired or fired in the stage Post Training; the "
                         "dynasty stands in Season."));
    window_->CloseScreens();
    window_->RunCommand("mnuStaffViewTrainer");
    auto* trainer = Find<StaffPostScreen>(*window_);
    QVERIFY(trainer && !trainer->Candidates());
    QCOMPARE(trainer->Caption(), QString("St. John's Head Trainer"));
    QCOMPARE(trainer->Grid()->Model()->rowCount(), 1);
  }

 private:
  std::string HumanSchool() {
    return dynasty_->store().ScalarText("SELECT Team FROM HeadCoach").value_or("");
  }

  std::unique_ptr<AppDynasty> dynasty_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::CareerTest)
#include "career_test.moc"
