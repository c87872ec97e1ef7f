// The offseason on the desktop, driven through its menus from a season
// played to its end: End Season, Run NBA Draft with its list, Players
// Leaving Early, Begin Offseason, the training screen with its 65-point rule
// and Reset, Train Players with the development report, and Start Next
// Season; each command's entry closed outside its stage.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QtTest>
#include <memory>

#include "app/grid_model.h"
#include "app/main_window.h"
#include "app/offseason_lists_screen.h"
#include "app/play_steps.h"
#include "app/staff_screen.h"
#include "app/training_screen.h"
#include "cpu/computer_roster.h"
#include "league/dynasty_fixture.h"
#include "league/start_season.h"
#include "offseason/career_steps.h"
#include "offseason/dynasty_year.h"
#include "recruiting/season_recruiting.h"
#include "screen_probes.h"
#include "screenshots.h"
#include "season/season_run.h"
#include "started_season.h"
#include "store/menu_gate.h"
#include "store/session.h"

namespace courtmere::app {

using testing::Find;
using testing::Screenshot;

class OffseasonTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    dynasty_ = testing::StartedSeason();
    Session& session = dynasty_->session();
    // The season played as the Sim button plays it, day after day.
    SeasonRun run(session);
    SeasonRecruiting recruiting;
    run.recruiting = &recruiting;
    run.cpuSetsUserTeam = true;
    QVERIFY(AdvanceStage(run, CoachCareer()));
    QCOMPARE(session.config.Stage, std::string(kStageSeasonOver));
    window_ = testing::ShowMainWindow(session);
  }
  void cleanupTestCase() {
    dynasty_->session().quitting = true;
    window_.reset();
    dynasty_.reset();
  }

  void endSeasonOpensTheDraft() {
    QVERIFY(!Open("mnuProgressRunDraft"));
    QVERIFY(!Open("mnuOffSeason"));
    Trigger("mnuProgressEnd");
    QCOMPARE(Stage(), std::string(kStageEndSeason));
    QVERIFY(!Open("mnuProgressBeginOffseason"));
    Trigger("mnuProgressRunDraft");
    QCOMPARE(Stage(), std::string(kStageNbaDraft));
    auto* draft = Find<OffseasonListScreen>(*window_);
    QVERIFY(draft);
    QCOMPARE(draft->Grid()->Model()->rowCount(), 58);
    QCOMPARE(draft->Caption(), QString("%1 NBA Draft").arg(session().config.CurrYear));
    Screenshot(window_.get(), "nba_draft");
    QVERIFY(!Open("mnuProgressRunDraft"));
  }

  void beginOffseasonOpensTraining() {
    QVERIFY(!Open("mnuOffSeason"));
    Trigger("mnuProgressBeginOffseason");
    QCOMPARE(Stage(), std::string(kStageBeginOffSeason));
    QCOMPARE(window_->windowTitle(), QString("Courtmere (OffSeason Period)"));
    QCOMPARE(Count("SELECT count(*) FROM Player WHERE NBAFlag = 1"), 0);
    QVERIFY(!Open("mnuProgress"));
    QVERIFY(!Open("mnuOffSeasonStart"));
    QVERIFY(Open("mnuOffSeasonTrain"));
  }

  void trainingScreenSpendsExactly65Points() {
    Trigger("mnuOffSeasonTrain");
    auto* screen = Find<TrainingScreen>(*window_);
    QVERIFY(screen);
    QCOMPARE(screen->Remaining()->text(), QString("TRAINING POINTS REMAINING: 0"));
    screen->List(kTrainThrees)->setCurrentIndex(10);
    QCOMPARE(screen->Remaining()->text(), QString("TRAINING POINTS REMAINING: -5"));
    screen->Submit();
    QVERIFY(ui().Messages().back().starts_with("You have used too many training points"));
    screen->List(kTrainEndurance)->setCurrentIndex(0);
    screen->List(kTrainSummerSchool)->setCurrentIndex(0);
    QCOMPARE(screen->Remaining()->text(), QString("TRAINING POINTS REMAINING: 5"));
    screen->Submit();
    QVERIFY(ui().Messages().back().starts_with("You still have remaining training points"));
    QCOMPARE(Count("SELECT count(*) FROM TrainPlayer, Player WHERE PlayerId = Id AND Team = "
                   "'St. John''s' AND Threes = 10"),
             0);
    screen->List(kTrainShooting)->setCurrentIndex(10);
    screen->Submit();
    QVERIFY(ui().Messages().back().ends_with(" have been updated."));
    QCOMPARE(Count("SELECT count(*) FROM TrainPlayer, Player WHERE PlayerId = Id AND Team = "
                   "'St. John''s' AND Threes = 10 AND Shooting = 10 AND TrainPlayer.Endurance = 0"),
             1);
    Screenshot(window_.get(), "training");
    screen->Reset();
    QCOMPARE(screen->List(kTrainThrees)->currentIndex(), 5);
    QCOMPARE(screen->Remaining()->text(), QString("TRAINING POINTS REMAINING: 0"));
  }

  void trainPlayersEndsInPostTraining() {
    const int64_t year = session().config.CurrYear;
    Trigger("mnuOffSeasonTrainPlayers");
    QCOMPARE(Stage(), std::string(kStagePostTraining));
    auto* report = Find<OffseasonListScreen>(*window_);
    QVERIFY(report);
    QCOMPARE(report->Caption(), QString("Player Development Report"));
    QVERIFY(report->Grid()->Model()->rowCount() >= 8);
    Screenshot(window_.get(), "development_report");
    QCOMPARE(Count("SELECT max(Year) FROM CoachHistory"), year);
    QVERIFY(!Open("mnuOffSeasonTrain"));
    FillCoachingStaff();
    QVERIFY(Open("mnuOffSeasonStart"));
    Trigger("mnuOffSeasonStart");
    QCOMPARE(Stage(), std::string(kStageSeason));
    QCOMPARE(session().config.CurrWeek, 1);
  }

 private:
  // A coach who left for a head coaching job is replaced on the hire
  // screen, as the user must before Start Season.
  void FillCoachingStaff() {
    while (Count("SELECT count(*) FROM Coach WHERE Team = 'St. John''s'") < 3) {
      Trigger("mnuStaffHireCoaches");
      auto* staff = Find<StaffScreen>(*window_);
      QVERIFY(staff && staff->Candidates() && staff->Candidates()->Model()->rowCount() > 0);
      staff->Candidates()->selectRow(0);
      staff->Hire();
      window_->CloseScreens();
    }
  }

  Session& session() { return dynasty_->session(); }
  ScriptedUi& ui() { return dynasty_->ui(); }
  std::string Stage() { return *session().Db().ScalarText("SELECT Stage FROM Config"); }
  int64_t Count(const std::string& sql) { return session().Db().ScalarInt(sql).value_or(-1); }
  bool Open(const char* entry) { return window_->Entry(entry)->isEnabled(); }
  void Trigger(const char* entry) {
    QVERIFY2(Open(entry), entry);
    window_->Entry(entry)->trigger();
    SettleEvents();
  }

  std::unique_ptr<testing::DynastyFixture> dynasty_;
  std::unique_ptr<MainWindow> window_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::OffseasonTest)
#include "offseason_test.moc"
