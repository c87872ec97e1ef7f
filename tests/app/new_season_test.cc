// A new dynasty on the desktop from File > New to the first day of a season:
// the conference choice and the team choice with their refusals, the coach's
// name with letters beyond ASCII, the non-conference screen and Start Season
// with theirs, the home screen and its list of what to do next, the depth
// chart and the coaches' roles set through their screens, the first weeks
// played with Sim Day, the display screens of those weeks, and the menus and
// title at each step. The slots run in order over one program folder, each
// going on from where the last stopped; nothing is done that the user could
// not do himself.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QtTest>
#include <memory>

#include "app/box_score_screen.h"
#include "app/bracket_screen.h"
#include "app/coach_roles_screen.h"
#include "app/conference_choice_screen.h"
#include "app/cri_screen.h"
#include "app/grid_model.h"
#include "app/home_screen.h"
#include "app/inbox_dock.h"
#include "app/leaders_screen.h"
#include "app/main_window.h"
#include "app/nct_bubble_screen.h"
#include "app/nonconf_games_screen.h"
#include "app/play_steps.h"
#include "app/roster_screen.h"
#include "app/score_ticker.h"
#include "app/scout_screen.h"
#include "app/sim_games_screen.h"
#include "app/staff_screen.h"
#include "app/suspensions_screen.h"
#include "app/team_choice_screen.h"
#include "app/top25_screen.h"
#include "platform/scripted_ui.h"
#include "screen_probes.h"
#include "screens/coach_roles.h"
#include "screens/leaders.h"
#include "screens/nonconf_submit.h"
#include "screenshots.h"
#include "store/session.h"
#include "store/store_files.h"
#include "support/temp_folder.h"

namespace courtmere::app {

using testing::Column;
using testing::Find;
using testing::Screenshot;

namespace {

constexpr const char* kCoach = "Seán O'Neil";

void Settle() {
  SettleEvents();
}

}  // namespace

class NewSeasonTest : public QObject {
  Q_OBJECT

 private slots:
  void initTestCase() {
    session_ = std::make_unique<Session>(ProgramFolder(dir_.Path()), Rng(11), ui_);
    StartUp(*session_);
    window_ = std::make_unique<MainWindow>(*session_);
    window_->show();
    window_->RunGate();
  }
  void cleanupTestCase() {
    session_->quitting = true;
    window_.reset();
    session_.reset();
  }

  void fileNewOpensTheConferenceChoice() {
    QVERIFY(window_->Intro());
    window_->Entry("mnuFileNew")->trigger();
    QCOMPARE(ui_.Questions().back(),
             std::string("Are you sure you want to start a new season? (all data will be erased)"));
    Settle();
    auto* screen = Find<ConferenceChoiceScreen>(*window_);
    QVERIFY(screen);
    QVERIFY2(!window_->Intro(), "the intro stands aside for the set-up");
    QVERIFY(screen->ConferenceList()->count() >= 4);
    QVERIFY(screen->SchoolList()->count() > 0);
    QCOMPARE(screen->Snapshot()->Model()->Cell(6, 0).text, QString("Prestige:"));
    QVERIFY(!screen->Snapshot()->Model()->Cell(6, 1).text.isEmpty());
    QVERIFY(!window_->Entry("mnuManagement")->isEnabled());
  }

  void theConferenceChoiceRefusesTooFewAndTooMany() {
    auto* screen = Find<ConferenceChoiceScreen>(*window_);
    screen->Continue();
    QCOMPARE(ui_.Messages().back(), std::string("Please enter three leagues before proceeding."));
    QCOMPARE(Leagues(), 6);
    for (int row = 0; row < 4; ++row) {
      screen->ConferenceList()->setCurrentRow(row);
      screen->AddConference();
    }
    QCOMPARE(ui_.Messages().back(),
             std::string("You already have selected three leagues. Please remove one if you wish "
                         "to select another."));
    const QString fourth = screen->ConferenceList()->item(3)->text();
    QCOMPARE(screen->ChosenList()->item(2)->text(), screen->ConferenceList()->item(2)->text());
    screen->ChosenList()->setCurrentRow(1);
    screen->RemoveConference();
    QCOMPARE(screen->ChosenList()->item(1)->text(), QString("(open)"));
    screen->Continue();
    QCOMPARE(ui_.Messages().back(), std::string("Please enter three leagues before proceeding."));
    QCOMPARE(Leagues(), 6);
    screen->ConferenceList()->setCurrentRow(3);
    screen->AddConference();
    QCOMPARE(screen->ChosenList()->item(1)->text(), fourth);
    Screenshot(window_.get(), "conference_choice");
    screen->Continue();
    Settle();
    QCOMPARE(Leagues(), 9);
    QVERIFY(!Find<ConferenceChoiceScreen>(*window_));
    QVERIFY(Find<TeamChoiceScreen>(*window_));
    QVERIFY(!window_->Intro());
  }

  void theTeamChoiceWantsASchoolAndAName() {
    auto* screen = Find<TeamChoiceScreen>(*window_);
    QCOMPARE(screen->ConferenceList()->count(), 9);
    screen->SchoolList()->setCurrentRow(-1);
    screen->Start();
    QCOMPARE(ui_.Messages().back(),
             std::string("Please select a school of your nine conferences before proceeding."));
    screen->SchoolList()->setCurrentRow(0);
    school_ = screen->SchoolList()->currentItem()->text();
    QCOMPARE(screen->Grid()->Model()->Cell(0, 0).text, QString("Location:"));
    screen->Start();
    QCOMPARE(ui_.Questions().back(), "Do you wish to select " + school_.toStdString() + "?");
    QCOMPARE(ui_.Messages().back(),
             std::string("Please enter the coach's name before proceeding."));
    QCOMPARE(session_->Db().ScalarInt("SELECT count(*) FROM HeadCoach").value_or(-1), 0);
    QVERIFY(!window_->Entry("mnuManagement")->isEnabled());
  }

  void randomizeRotatesThePrestigeAndDefaultRestoresIt() {
    auto* screen = Find<TeamChoiceScreen>(*window_);
    const auto before = PrestigeColumn();
    screen->ChangePrestige();
    QCOMPARE(ui_.Questions().back(),
             std::string("Do you wish to randomize the prestige levels for all schools?"));
    QVERIFY(PrestigeColumn() != before);
    screen->DefaultOption()->setChecked(true);
    screen->ChangePrestige();
    QCOMPARE(PrestigeColumn(), before);
  }

  void startSetsUpTheDynasty() {
    auto* screen = Find<TeamChoiceScreen>(*window_);
    screen->CoachName()->setText(QString::fromUtf8(kCoach));
    Screenshot(window_.get(), "team_choice");
    screen->Start();
    Settle();
    QVERIFY(!Find<TeamChoiceScreen>(*window_));
    QVERIFY(!window_->Intro());
    QCOMPARE(window_->windowTitle(), QString("Courtmere (OffSeason Period)"));
    for (const char* open : {"mnuFileSave", "mnuManagement", "mnuOffSeason", "mnuOffSeasonStart",
                             "mnuNonConfPre", "mnuStaff"}) {
      QVERIFY2(window_->Entry(open)->isEnabled(), open);
    }
    for (const char* closed : {"mnuSeason", "mnuNational", "MnuConference"}) {
      QVERIFY2(!window_->Entry(closed)->isEnabled(), closed);
    }
    Rows coach = session_->Db().Query("SELECT Name, Team FROM HeadCoach");
    QVERIFY(coach.Next());
    QCOMPARE(coach.Text(0), std::string(kCoach));
    QCOMPARE(QString::fromStdString(coach.Text(1)), school_);
    QCOMPARE(window_->Inbox()->windowTitle(), school_ + " Email Inbox");
  }

  void theNonConferenceScreenRefusesThenSaves() {
    window_->Entry("mnuNonConfPre")->trigger();
    auto* screen = Find<NonConfGamesScreen>(*window_);
    QVERIFY(screen);
    QCOMPARE(screen->Caption(), "Setup Pre-Conference Schedule for " + school_);
    const NonConfScreen& shown = screen->Shown();
    QVERIFY(!shown.Rows.empty());
    screen->Submit();
    QCOMPARE(ui_.Messages().back(), std::string(kSelectEveryGame));
    // Every game keeps its opponent but the first offered one, which takes
    // the second school of its list.
    size_t changed = shown.Rows.size();
    for (size_t i = 0; i < shown.Rows.size(); ++i) {
      const NonConfRow& row = shown.Rows[i];
      if (!row.Offered()) continue;
      const bool change = changed == shown.Rows.size() && row.Choices.size() > 1;
      if (change) changed = i;
      QVERIFY(screen->Pick(i, QString::fromStdString(row.Choices[change ? 1 : 0].School)));
    }
    QVERIFY(changed < shown.Rows.size());
    const int gameNo = shown.Rows[changed].GameNo;
    const std::string wanted = shown.Rows[changed].Choices[1].School;
    Screenshot(window_.get(), "nonconf_games");
    ui_.QueueAnswer(false);
    screen->Submit();
    QVERIFY(!PlaysIn(gameNo, wanted));
    screen->Submit();
    QCOMPARE(ui_.Messages().back(), std::string(kChangesSaved));
    QVERIFY(PlaysIn(gameNo, wanted));
    QCOMPARE(QString::fromStdString(screen->Shown().Rows[changed].Opponent),
             QString::fromStdString(wanted));
  }

  void startSeasonWarnsRefusesThenOpensTheSeason() {
    Store& store = session_->Db();
    const std::string school = school_.toStdString();
    ui_.QueueAnswer(false);
    window_->Entry("mnuOffSeasonStart")->trigger();
    QVERIFY(QString::fromStdString(ui_.Questions().back())
                .startsWith("Once you start the season you will no longer"));
    QCOMPARE(Stage(), std::string("Post Training"));
    const int64_t coach = *store.ScalarInt("SELECT min(Id) FROM Coach WHERE Team = ?", school);
    store.Exec("UPDATE Coach SET Team = 'nobody' WHERE Id = ?", coach);
    window_->Entry("mnuOffSeasonStart")->trigger();
    QCOMPARE(ui_.Messages().back(),
             std::string("Please setup your full three member coaching staff before starting "
                         "the season"));
    store.Exec("UPDATE Coach SET Team = ? WHERE Id = ?", school, coach);
    QCOMPARE(Stage(), std::string("Post Training"));
    window_->Entry("mnuOffSeasonStart")->trigger();
    Settle();
    QCOMPARE(Stage(), std::string("Season"));
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Dead Period)"));
    QVERIFY(window_->Entry("mnuSeason")->isEnabled());
    QVERIFY(window_->Entry("mnuNationalStandings")->isEnabled());
    QVERIFY(!window_->Entry("mnuOffSeasonStart")->isEnabled());
    QVERIFY(Column(window_->Inbox()->Grid(), 1).contains("Season Instructions"));
  }

  // With no other screen open the home screen stands, and its list holds the
  // two guards of Sim Day, the week's recruiting (no list yet, the week's
  // points unspent) and the day to play; nothing is offered whose entry is
  // closed.
  void theHomeScreenListsWhatToDo() {
    window_->CloseScreens();
    Settle();
    HomeScreen* home = window_->Home();
    QVERIFY(home);
    QCOMPARE(home->TodoEntries(),
             (QStringList{"mnuManagementRoster", "mnuStaffViewCoaches", "mnuRecruitViewTeam",
                          "mnuRecruitViewTeam", "mnuSeasonSimGames"}));
    QCOMPARE(home->TodoTexts().last(), QString("Play the games of Thursday, week 1"));
    QCOMPARE(home->Value("Record"), QString("0-0"));
    QVERIFY2(home->Value("Place").contains(" of "), qPrintable(home->Value("Place")));
    QCOMPARE(home->Value("Poll").isEmpty(), false);
    QVERIFY(home->findChild<QLabel*>("lblSchool")->text() == school_);
    Screenshot(window_.get(), "home_new_season");
  }

  // The guards of Sim Day send the user to the roster and the staff, and the
  // home screen's links take him there; each task leaves the list when done.
  void simDayWantsAChartAndRolesSetThroughTheirScreens() {
    ChooseQuickestTicker(*session_, *window_);
    window_->Entry("mnuSeasonSimGames")->trigger();
    auto* screen = Find<SimGamesScreen>(*window_);
    QVERIFY(screen);
    QVERIFY(!window_->Home());
    // Enter presses Sim Day.
    QApplication::setActiveWindow(window_.get());
    screen->Grid()->setFocus();
    QTest::keyClick(screen->Grid(), Qt::Key_Return);
    QCOMPARE(ui_.Messages().back(), "Please set the depth chart for " + school_.toStdString() +
                                        " before trying to sim this day.");
    QCOMPARE(session_->config.CurrDay, std::string("Thursday"));
    QVERIFY2(screen->SimButton()->isEnabled(), "a refused day can be pressed again");

    window_->CloseScreens();
    Settle();
    window_->Home()->Follow("mnuManagementRoster");
    Settle();
    auto* roster = Find<RosterScreen>(*window_);
    QVERIFY(roster);
    ui_.QueueAnswer(true);
    roster->findChild<QPushButton*>("cmdAuto")->click();
    window_->CloseScreens();
    Settle();
    QCOMPARE(window_->Home()->TodoEntries(),
             (QStringList{"mnuStaffViewCoaches", "mnuRecruitViewTeam", "mnuRecruitViewTeam",
                          "mnuSeasonSimGames"}));

    window_->Entry("mnuSeasonSimGames")->trigger();
    screen = Find<SimGamesScreen>(*window_);
    screen->SimButton()->click();
    QCOMPARE(ui_.Messages().back(),
             "Please assign an offensive coach for " + school_.toStdString() +
                 " before trying to sim this day. You can do this by going to Staff, view "
                 "coaches and selecting Change Roles.");
    QCOMPARE(session_->config.CurrDay, std::string("Thursday"));

    // Staff > View Coaches > Change Roles: one coach for both is not taken.
    window_->Entry("mnuStaffViewCoaches")->trigger();
    auto* staff = Find<StaffScreen>(*window_);
    QVERIFY(staff);
    QCOMPARE(staff->Grid()->Model()->rowCount(), 3);
    staff->RolesButton()->click();
    Settle();
    auto* roles = Find<CoachRolesScreen>(*window_);
    QVERIFY(roles);
    QCOMPARE(roles->Caption(), school_ + " Coaching Roles");
    roles->Offence(0)->setCurrentIndex(1);
    roles->Defence(0)->setCurrentIndex(1);
    QCOMPARE(roles->Offence(0)->currentText(), QString("0"));
    roles->Submit();
    QCOMPARE(ui_.Messages().back(), std::string(kRolesNotOneEach));
    QVERIFY(Find<CoachRolesScreen>(*window_));
    roles->Offence(2)->setCurrentIndex(1);
    Screenshot(window_.get(), "coach_roles");
    roles->Submit();
    Settle();
    QVERIFY(!Find<CoachRolesScreen>(*window_));
    QCOMPARE(Column(staff->Grid(), 11), (QStringList{"0", "0", "1"}));
    QCOMPARE(Column(staff->Grid(), 12), (QStringList{"1", "0", "0"}));
    QCOMPARE(Column(staff->Grid(), 13), (QStringList{"1", "2", "1"}));
    window_->CloseScreens();
    Settle();
    QCOMPARE(window_->Home()->TodoEntries(),
             (QStringList{"mnuRecruitViewTeam", "mnuRecruitViewTeam", "mnuSeasonSimGames"}));
  }

  // Sim Day and Next Day through week 1; the home screen then shows the
  // games, the letters and the first poll's place on its chart.
  void weekOneIsPlayedAndShownAtHome() {
    window_->Entry("mnuSeasonSimGames")->trigger();
    auto* screen = Find<SimGamesScreen>(*window_);
    QCOMPARE(screen->WeekCaption()->text(), QString("Week 1, 2001 - Thursday"));
    QVERIFY(!screen->PrevButton()->isEnabled());
    QVERIFY(screen->CoachGame()->isEnabled());
    for (int day = 0; day < 4; ++day) {
      if (day > 0) screen->NextButton()->click();
      QVERIFY2(SimDayAsUser(*window_, ui_, *screen), ui_.Messages().back().c_str());
      QVERIFY(screen->Grid()->Model()->rowCount() > 0 || !screen->Notice()->text().isEmpty());
    }
    QCOMPARE(session_->config.CurrWeek, 2);
    window_->CloseScreens();
    Settle();
    HomeScreen* home = window_->Home();
    QVERIFY(home);
    const QStringList record = home->Value("Record").split('-');
    QCOMPARE(record.size(), 2);
    QVERIFY(record[0].toInt() + record[1].toInt() >= 1);
    QVERIFY(home->ChartPoints() >= 1);
    QVERIFY(home->TodoTexts().last().startsWith("Play the games of Thursday, week 2"));
    Screenshot(window_.get(), "home_week2");
    window_->Entry("mnuSeasonSimGames")->trigger();
  }

  // Sim Day and Next Day on to the Saturday of week 5, which plays nothing,
  // and one press more into week 6.
  void simDayRunsThroughWeekFive() {
    auto* screen = Find<SimGamesScreen>(*window_);
    QVERIFY(screen);
    QCOMPARE(screen->WeekCaption()->text(), QString("Week 2, 2001 - Thursday"));
    int days = 0;
    const QString weekFive("Week 5, 2001 - Saturday");
    bool ticked = false;
    while (screen->WeekCaption()->text() != weekFive) {
      QVERIFY2(screen->SimButton()->isEnabled(), qPrintable(screen->WeekCaption()->text()));
      QVERIFY2(SimDayAsUser(*window_, ui_, *screen),
               ui_.Messages().empty() ? "no message" : ui_.Messages().back().c_str());
      ticked = ticked || window_->Ticker()->Lines()->count() > 0;
      QVERIFY(window_->Ticker()->isHidden());
      screen->NextButton()->click();
      QVERIFY(++days <= 8);
    }
    QCOMPARE(days, 6);  // 2 a week in weeks 2 to 4
    QVERIFY2(ticked, "the ticker showed the results of the games off the user's list");
    QVERIFY(!screen->NextButton()->isEnabled());
    QCOMPARE(screen->Notice()->text(),
             QString("No Games Today\nClick Sim Day to\nAdvance to next week"));
    QVERIFY(screen->SimButton()->isEnabled());
    Screenshot(window_.get(), "sim_games_week5");
    screen->SimButton()->click();
    QCOMPARE(session_->config.CurrWeek, 6);
    QCOMPARE(session_->config.CurrDay, std::string("Thursday"));
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Contact Period)"));
    QCOMPARE(window_->Inbox()->Grid()->Model()->rowCount(),
             static_cast<int>(session_->inbox.Messages.size()));
    QVERIFY2(Played() > 300, qPrintable(QString::number(Played())));
    // The games' figures reach the season's boards.
    window_->Entry("mnuNationalLeaders")->trigger();
    auto* leaders = Find<LeadersScreen>(*window_);
    QVERIFY(leaders);
    QVERIFY(leaders->Grid()->Model()->rowCount() >= kLeaderRows);  // more when 25th is shared
    QVERIFY(leaders->Grid()->Model()->Cell(0, 4).text.toInt() >= 5);
  }

  // The week-3 academic check has run: each conference lists its suspended
  // players, and together they are every suspended man of the first division.
  void theSuspensionsListEachConference() {
    window_->Entry("mnuNewsSuspensions")->trigger();
    auto* list = Find<SuspensionsScreen>(*window_);
    QVERIFY(list);
    QCOMPARE(list->Conferences()->currentText(), QString::fromStdString(session_->humanConference));
    int listed = 0;
    for (int i = 0; i < list->Conferences()->count(); ++i) {
      list->Conferences()->setCurrentIndex(i);
      const int rows = list->Grid()->Model()->rowCount();
      listed += rows;
      QCOMPARE(list->Notice()->text().isEmpty(), rows > 0);
      for (int row = 0; row < rows; ++row) {
        const int id = list->Grid()->Model()->Key(row);
        QCOMPARE(
            session_->Db().ScalarInt("SELECT Suspended FROM Player WHERE Id = ?", id).value_or(0),
            int64_t{1});
      }
      if (rows > 0) Screenshot(window_.get(), "suspensions");
    }
    QCOMPARE(int64_t{listed},
             *session_->Db().ScalarInt("SELECT count(*) FROM Player JOIN Team ON "
                                       "Team.SchoolName = Player.Team WHERE Suspended = 1"));
  }

  // From week 6 the bubble: the places on both sides of the line, "In" above
  // it and "Out" below, by falling score.
  void theBubbleWatchOpensInWeekSix() {
    QVERIFY(window_->Entry("mnuHeadlineBubble")->isEnabled());
    window_->Entry("mnuHeadlineBubble")->trigger();
    auto* bubble = Find<NctBubbleScreen>(*window_);
    QVERIFY(bubble);
    GridModel* rows = bubble->Grid()->Model();
    QCOMPARE(rows->rowCount(), 16);
    const QStringList status = Column(bubble->Grid(), 5);
    QCOMPARE(status.count("In"), 8);
    QCOMPARE(status.indexOf("Out"), 8);
    for (int row = 1; row < rows->rowCount(); ++row) {
      QVERIFY(rows->Cell(row, 4).sortKey.toDouble() <= rows->Cell(row - 1, 4).sortKey.toDouble());
    }
    // 31 conferences: 31 automatic bids, held or projected, leave 33 places.
    QVERIFY2(bubble->Summary()->text().startsWith("33 at-large places after 31 automatic bids"),
             qPrintable(bubble->Summary()->text()));
    Screenshot(window_.get(), "nct_bubble");
  }

  // The next opponent, graded by the user's own scout: letters on every man.
  void scoutOpponentsReportsTheNextGame() {
    window_->Entry("mnuSeasonScout")->trigger();
    auto* scout = Find<ScoutScreen>(*window_);
    QVERIFY(scout);
    QVERIFY2(scout->Title()->text().startsWith("Week 6, Thursday"),
             qPrintable(scout->Title()->text()));
    QVERIFY(scout->Roster()->Model()->rowCount() >= 10);
    QVERIFY(QString("ABCDF").contains(scout->Roster()->Model()->Cell(0, 5).text));
    QCOMPARE(scout->Leaders()->Model()->rowCount(), 3);
    const QString first = scout->Roster()->Model()->Cell(0, 5).text;
    scout->Refresh();
    QCOMPARE(scout->Roster()->Model()->Cell(0, 5).text, first);  // the same report again
    Screenshot(window_.get(), "scout_opponents");
  }

  void thePollTheIndexAndThePreseasonBracketsAreShown() {
    window_->Entry("mnuNationalTop25")->trigger();
    auto* poll = Find<Top25Screen>(*window_);
    QVERIFY(poll);
    QCOMPARE(poll->Grid()->Model()->rowCount(), 25);
    QVERIFY(!poll->Votes()->text().isEmpty());
    window_->Entry("mnuNationalCRI")->trigger();
    auto* index = Find<CriScreen>(*window_);
    QVERIFY(index);
    QVERIFY(index->Grid()->Model()->rowCount() >= 25);
    QCOMPARE(index->Grid()->Model()->Cell(0, 0).text, QString("1"));
    window_->Entry("mnuSeasonHawaii")->trigger();
    auto* bracket = Find<BracketScreen>(*window_);
    QVERIFY(bracket);
    const BracketView& view = bracket->Canvas()->Bracket();
    QVERIFY(!view.sections.empty());
    QCOMPARE(view.sections[0].rounds[0].games.size(), size_t{4});
    QVERIFY2(!view.champion.empty(), "week 1 is over");
    QVERIFY(bracket->Canvas()->width() > 3 * 210);
    Screenshot(window_.get(), "preseason_bracket");
  }

  void aPlayedGameOpensItsBoxScore() {
    auto* screen = Find<SimGamesScreen>(*window_);
    QCOMPARE(screen->WeekCaption()->text(), QString("Week 5, 2001 - Saturday"));
    screen->PrevButton()->click();
    QCOMPARE(screen->WeekCaption()->text(), QString("Week 4, 2001 - Saturday"));
    QVERIFY(screen->Grid()->Model()->rowCount() > 0);
    QVERIFY(!screen->SimButton()->isEnabled());
    emit screen->Grid()->CellClicked(0, 0);
    Settle();
    QVERIFY(Find<BoxScoreScreen>(*window_));
  }

  void theAutoSimRunsToWeekFifteen() {
    QVERIFY(window_->Entry("mnuStartAutoSim")->isEnabled());
    ui_.QueueAnswer(false);
    window_->Entry("mnuStartAutoSim")->trigger();
    QCOMPARE(session_->config.CurrWeek, 6);
    window_->Entry("mnuStartAutoSim")->trigger();
    QVERIFY(QString::fromStdString(ui_.Questions().back())
                .endsWith("So, are you sure you want to start the auto sim?"));
    QCOMPARE(session_->config.CurrWeek, 15);
    QCOMPARE(session_->config.CurrDay, std::string("Thursday"));
    // The running season's caption: Dead from the end of week 12 to that of
    // week 15 (a loaded dynasty's week 15 reads Signing).
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Dead Period)"));
    QVERIFY(!window_->Entry("mnuStartAutoSim")->isEnabled());
    QVERIFY(!window_->Entry("mnuStopAutoSim")->isEnabled());
    QVERIFY(window_->Entry("mnuSeasonSimGames")->isEnabled());
  }

 private:
  int Leagues() {
    return static_cast<int>(*session_->Db().ScalarInt("SELECT count(*) FROM League"));
  }
  std::string Stage() {
    Rows r = session_->Db().Query("SELECT Stage FROM Config WHERE IdConfig = 0");
    return r.Next() ? r.Text(0) : "";
  }
  // The games with a score, over every schedule table.
  int64_t Played() {
    int64_t games = 0;
    for (int league = 1; league <= 9; ++league) {
      games += *session_->Db().ScalarInt("SELECT count(*) FROM League" + std::to_string(league) +
                                         "Schedule WHERE HomeScore <> 0");
    }
    return games +
           *session_->Db().ScalarInt("SELECT count(*) FROM NonConfSchedule WHERE HomeScore <> 0");
  }
  std::vector<int64_t> PrestigeColumn() {
    std::vector<int64_t> values;
    for (Rows r = session_->Db().Query("SELECT InitialPrestige FROM Team ORDER BY SchoolName");
         r.Next();) {
      values.push_back(r.Int64(0));
    }
    return values;
  }
  bool PlaysIn(int gameNo, const std::string& school) {
    return session_->Db()
               .ScalarInt(
                   "SELECT count(*) FROM NonConfSchedule WHERE GameNo = ? AND (HomeTeam = ? OR "
                   "AwayTeam = ?)",
                   gameNo, school, school)
               .value_or(0) == 1;
  }

  testing::TempFolder dir_;
  ScriptedUi ui_;
  std::unique_ptr<Session> session_;
  std::unique_ptr<MainWindow> window_;
  QString school_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::NewSeasonTest)
#include "new_season_test.moc"
