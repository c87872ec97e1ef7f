// The menu gate: which entries each stage and week open, the title, the
// user's school, and the gate's two messages, as the store decides them and
// as the main window shows them.
#include "store/menu_gate.h"

#include <QAction>
#include <QtTest>
#include <algorithm>
#include <memory>

#include "app/main_window.h"
#include "app/menu_tree.h"
#include "app_dynasty.h"

namespace courtmere::app {

using testing::AppDynasty;

namespace {

bool IsTopMenu(const MenuEntry& entry) {
  return entry.parent == nullptr;
}

QStringList Split(const char* names) {
  return QString(names).split(' ', Qt::SkipEmptyParts);
}

}  // namespace

class MenuGateTest : public QObject {
  Q_OBJECT

 private slots:
  void init() { dynasty_ = std::make_unique<AppDynasty>(); }
  void cleanup() { dynasty_.reset(); }

  void startUpOpensOnlyTheIntrosWay() {
    const MenuGateState state = StartUpMenus();
    for (const MenuEntry& entry : MenuTree()) {
      if (IsTopMenu(entry)) QVERIFY2(!state.Open(entry.name), entry.name);
    }
    QVERIFY(state.Open("mnuFileLoad"));
    QVERIFY(state.Open("mnuFileNew"));
    QVERIFY(!state.Open("mnuFileSave"));
  }

  void aStoreWithConfigButNoHeadCoachOpensFileAndHelpOnly() {
    dynasty_->store().Exec("DELETE FROM HeadCoach");
    MainWindow window(dynasty_->session());
    window.RunGate();
    for (const MenuEntry& entry : MenuTree()) {
      if (!IsTopMenu(entry)) continue;
      const bool open = QString(entry.name) == "mnuFile" || QString(entry.name) == "mnuHelp";
      QCOMPARE(window.Entry(entry.name)->isEnabled(), open);
    }
    QVERIFY(!window.Entry("mnuFileSave")->isEnabled());
    QVERIFY(window.Entry("mnuFileLoad")->isEnabled());
    QVERIFY(window.Intro());
    QCOMPARE(window.windowTitle(), QString("Courtmere"));
    QVERIFY(dynasty_->session().humanSchool.empty());
    dynasty_->session().quitting = true;
  }

  void eachStageOpensItsMenus_data() {
    QTest::addColumn<QString>("stage");
    QTest::addColumn<int>("week");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("open");
    QTest::addColumn<QStringList>("closed");
    QTest::newRow("Season") << "Season" << 3 << "Courtmere (Contact Period)"
                            << Split(
                                   "MnuConference mnuNational mnuSeason mnuRecruit mnuNews "
                                   "mnuFileSave mnuManageRoster mnuManagementRoster "
                                   "mnuHeadlinePlayer mnuNewsPlayersLeaving mnuStartAutoSim")
                            << Split(
                                   "mnuOffSeason mnuOffSeasonStart mnuStaffHireCoaches "
                                   "mnuProgress mnuNationalCRI mnuPostseasonNCT "
                                   "mnuHeadlinesAllAmerica mnuNewsRecruitSignings");
    QTest::newRow("Season Over") << "Season Over" << 21 << "Courtmere (OffSeason Period)"
                                 << Split(
                                        "mnuProgress mnuProgressEnd mnuOutputDraft "
                                        "mnuPostseasonNCT mnuPostseasonACT mnuNewsTestScores")
                                 << Split(
                                        "mnuNewsRecruitSignings mnuStartAutoSim mnuOffSeason "
                                        "mnuProgressRunDraft");
    QTest::newRow("End Season") << "End Season" << 21 << "Courtmere (End of Season)"
                                << Split(
                                       "mnuProgressRunDraft mnuNewsRecruitSignings "
                                       "mnuOutputDraft mnuProgress mnuHeadlinesCoaches")
                                << Split(
                                       "mnuManageRoster mnuProgressEnd mnuOutputMochDraft "
                                       "mnuProgressBeginOffseason");
    QTest::newRow("NBA Draft") << "NBA Draft" << 21 << "Courtmere (End of Season)"
                               << Split(
                                      "mnuProgressBeginOffseason mnuNewsNBADraft "
                                      "mnuHeadlinesAllAmerica mnuHeadlineConf "
                                      "mnuHeadlinesCoaches mnuProgressJobs mnuProgress "
                                      "mnuOutputMochDraft")
                               << Split("mnuProgressRunDraft mnuProgressEnd mnuOffSeason");
    QTest::newRow("Begin OffSeason")
        << "Begin OffSeason" << 21 << "Courtmere (OffSeason Period)"
        << Split("mnuOffSeason mnuOffSeasonTrain mnuOffSeasonTrainPlayers mnuNewsNBADraft")
        << Split(
               "mnuOutputDraft mnuOutputMochDraft mnuProgress mnuProgressJobs "
               "mnuProgressBeginOffseason mnuManageRoster mnuManagementRoster "
               "mnuManagementTeamStats mnuHeadlinesAllAmerica mnuHeadlineConf "
               "mnuHeadlinesCoaches mnuOffSeasonStart");
    QTest::newRow("Post Training")
        << "Post Training" << 1 << "Courtmere (OffSeason Period)"
        << Split(
               "mnuStaffHireCoaches mnuStaffHireScout mnuStaffHireTrainer mnuManagementRoster "
               "mnuManagementTeamStats mnuManageRoster mnuOffSeason mnuOffSeasonNonConf "
               "mnuOffSeasonStart mnuManagement mnuStaff mnuHistory mnuFileSave")
        << Split(
               "mnuNewsRecruitSignings mnuOutputDraft mnuNewsNBADraft mnuOffSeasonTrain "
               "mnuOffSeasonTrainPlayers mnuRecruit MnuConference mnuNational mnuHeadlines "
               "mnuPostseasonConf mnuProgress mnuSeason mnuNews");
    // Never written, only tested for: it acts like no stage at all.
    QTest::newRow("Preseason") << "Preseason" << 7 << "Courtmere (Evaluation Period)"
                               << Split("mnuSeason mnuStartAutoSim mnuNationalCRI mnuRecruit")
                               << Split("mnuProgress mnuOffSeason mnuOffSeasonStart");
  }

  void eachStageOpensItsMenus() {
    QFETCH(QString, stage);
    QFETCH(int, week);
    QFETCH(QString, title);
    QFETCH(QStringList, open);
    QFETCH(QStringList, closed);
    dynasty_->SetCalendar(stage.toStdString(), week);
    const MenuGateState state = ComputeMenuGate(dynasty_->store());
    QCOMPARE(QString::fromStdString(state.title), title);
    for (const QString& name : open)
      QVERIFY2(state.entries.at(name.toStdString()), qPrintable(name));
    for (const QString& name : closed) {
      QVERIFY2(!state.entries.at(name.toStdString()), qPrintable(name));
    }
  }

  void weekBoundaries_data() {
    QTest::addColumn<int>("week");
    QTest::addColumn<QStringList>("open");
    QTest::addColumn<QStringList>("closed");
    QTest::newRow("1") << 1 << QStringList{}
                       << Split("mnuHeadlinePlayer mnuNewsPlayersLeaving mnuNationalCRI");
    QTest::newRow("2") << 2 << Split("mnuHeadlinePlayer") << Split("mnuNewsPlayersLeaving");
    QTest::newRow("3") << 3 << Split("mnuNewsPlayersLeaving") << Split("mnuNationalCRI");
    QTest::newRow("5") << 5 << QStringList{} << Split("mnuNationalCRI mnuHeadlineBubble");
    QTest::newRow("6") << 6 << Split("mnuNationalCRI mnuHeadlineBubble")
                       << Split("mnuNewsTestScores");
    QTest::newRow("12") << 12 << Split("mnuNewsTestScores") << QStringList{};
    QTest::newRow("14") << 14 << Split("mnuStartAutoSim mnuStopAutoSim")
                        << Split("mnuPostseasonConf");
    QTest::newRow("15") << 15 << QStringList{}
                        << Split(
                               "mnuStartAutoSim mnuStopAutoSim mnuPostseasonConf "
                               "mnuHeadlinesAllAmerica mnuHeadlineConf");
    QTest::newRow("16") << 16 << Split("mnuPostseasonConf mnuHeadlinesAllAmerica mnuHeadlineConf")
                        << Split("mnuPostseasonNCT mnuPostseasonACT mnuStartAutoSim");
    QTest::newRow("17") << 17 << Split("mnuPostseasonNCT mnuPostseasonACT") << QStringList{};
  }

  void weekBoundaries() {
    QFETCH(int, week);
    QFETCH(QStringList, open);
    QFETCH(QStringList, closed);
    dynasty_->SetCalendar("Season", week);
    const MenuGateState state = ComputeMenuGate(dynasty_->store());
    for (const QString& name : open)
      QVERIFY2(state.entries.at(name.toStdString()), qPrintable(name));
    for (const QString& name : closed) {
      QVERIFY2(!state.entries.at(name.toStdString()), qPrintable(name));
    }
  }

  void theTitleNamesTheWeeksPeriod() {
    const std::map<int, std::string> titles = {
        {1, "Dead Period"},        {2, "Contact Period"},    {3, "Contact Period"},
        {4, "Quiet Period"},       {5, "Quiet Period"},      {6, "Contact Period"},
        {7, "Evaluation Period"},  {8, "Evaluation Period"}, {9, "Contact Period"},
        {10, "Evaluation Period"}, {11, "Quiet Period"},     {12, "Contact Period"},
        {13, "Signing Period"},    {17, "Signing Period"},   {18, "End of Season"},
        {19, "End of Season"},     {20, "OffSeason Period"}, {27, "OffSeason Period"}};
    for (const auto& [week, period] : titles) {
      QCOMPARE(PeriodTitle(week), "Courtmere (" + period + ")");
    }
  }

  void aLoadNeverInheritsTheMenusBefore() {
    MainWindow window(dynasty_->session());
    dynasty_->SetCalendar("Begin OffSeason", 21);
    window.RunGate();
    QVERIFY(!window.Entry("mnuManagementRoster")->isEnabled());
    dynasty_->SetCalendar("Season", 4);
    window.RunGate();
    QVERIFY(window.Entry("mnuManagementRoster")->isEnabled());
    QCOMPARE(window.windowTitle(), QString("Courtmere (Quiet Period)"));
    dynasty_->session().quitting = true;
  }

  void aFiredCoachStillFindsHisSchool() {
    dynasty_->store().Exec("UPDATE HeadCoach SET Team = ?", "Fired-St. John's");
    const MenuGateState state = MenuGate(dynasty_->session());
    QVERIFY(state.dynasty);
    QVERIFY(state.entries.at("mnuManagement"));
    QCOMPARE(dynasty_->session().humanSchool, std::string(AppDynasty::kHuman));
    QCOMPARE(dynasty_->session().humanConference, std::string(AppDynasty::kConference));
    QCOMPARE(dynasty_->session().humanScheduleTable, std::string("League1Schedule"));
  }

  void aConferenceWithoutItsLeagueSaysSo() {
    dynasty_->store().Exec("DELETE FROM League");
    MainWindow window(dynasty_->session());
    window.RunGate();
    QCOMPARE(dynasty_->ui().Messages(),
             std::vector<std::string>{
                 "Error, cannot Load schedule. Contact the developers of Courtmere."});
    for (const char* name : {"MnuConference", "mnuManagement", "mnuSeason", "mnuHistory"}) {
      QVERIFY2(!window.Entry(name)->isEnabled(), name);
    }
    QVERIFY(window.Entry("mnuNational")->isEnabled());
    QVERIFY(window.Entry("mnuFileSave")->isEnabled());
    dynasty_->session().quitting = true;
  }

  void noConfigRowEndsTheProgram() {
    MainWindow window(dynasty_->session());
    window.show();
    dynasty_->store().Exec("DELETE FROM Config");
    window.RunGate();
    QCOMPARE(dynasty_->ui().Messages().back(),
             std::string("Start Error - Contact the developers of Courtmere."));
    QVERIFY(dynasty_->session().quitting);
    QVERIFY(!window.isVisible());
    QVERIFY(dynasty_->ui().Questions().empty());
  }

  void theWindowCarriesTheWholeTree() {
    MainWindow window(dynasty_->session());
    window.RunGate();
    for (const MenuEntry& entry : MenuTree()) {
      QAction* action = window.Entry(entry.name);
      QVERIFY2(action, entry.name);
      QCOMPARE(action->text(), QString::fromUtf8(entry.caption));
      QCOMPARE(action->shortcut(), QKeySequence(QString::fromUtf8(entry.shortcut)));
    }
    QCOMPARE(window.Entry("mnuNewsSuspensions")->shortcut(), QKeySequence("Ctrl+A"));
    // An entry without a screen stays closed, even inside an open menu.
    QVERIFY(window.Entry("mnuManagement")->isEnabled());
    QVERIFY(window.Entry("mnuManagementInfo")->isEnabled());
    for (const MenuEntry& entry : MenuTree()) {
      const bool menu = std::any_of(MenuTree().begin(), MenuTree().end(), [&](const MenuEntry& e) {
        return e.parent != nullptr && std::string_view(e.parent) == entry.name;
      });
      if (!menu && !window.HasCommand(entry.name)) {
        QVERIFY2(!window.Entry(entry.name)->isEnabled(), entry.name);
      }
    }
    dynasty_->session().quitting = true;
  }

 private:
  std::unique_ptr<AppDynasty> dynasty_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::MenuGateTest)
#include "menu_gate_test.moc"
