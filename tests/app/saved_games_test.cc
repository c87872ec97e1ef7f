// File > Save, File > Load and quitting, through the main window's menus: a
// save and a load give back the same dynasty, a damaged file leaves the open
// one as it was, and quitting asks first.
#include "store/saved_games.h"

#include <QAction>
#include <QPushButton>
#include <QtTest>
#include <fstream>
#include <iterator>
#include <memory>

#include "app/intro_screen.h"
#include "app/main_window.h"
#include "app_dynasty.h"

namespace courtmere::app {

using testing::AppDynasty;

namespace {

// Every row of the tables a dynasty lives in, as text.
std::string Dump(Store& store) {
  std::string dump;
  for (const char* table : {"Config", "HeadCoach", "Team", "Player", "Coach", "Scout", "Trainer",
                            "TeamStats", "PlayerStats", "NonConfSchedule", "League1Schedule"}) {
    for (Rows r = store.Query(std::string("SELECT * FROM ") + table + " ORDER BY rowid");
         r.Next();) {
      for (int c = 0; c < r.ColumnCount(); ++c) dump += r.Text(c) + "|";
      dump += "\n";
    }
  }
  return dump;
}

std::string SeasonFigures(Session& session) {
  std::string figures;
  const TeamSeasonLines& team =
      session.seasonStats.Team(session.seasonStats.FindTeam(AppDynasty::kHuman));
  for (const PlayerSeasonLine& p : team.Players) {
    figures +=
        std::to_string(p.Id) + ":" + std::to_string(p.Points) + ":" + std::to_string(p.Games) + " ";
  }
  return figures;
}

std::string Read(const std::filesystem::path& file) {
  std::ifstream in(file, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), {});
}

}  // namespace

class SavedGamesTest : public QObject {
  Q_OBJECT

 private slots:
  void init() {
    dynasty_ = std::make_unique<AppDynasty>();
    dynasty_->NameCoachRoles();
    dynasty_->PlayGame(AppDynasty::kHuman, "Duke", 2, "Thursday", false);
    window_ = std::make_unique<MainWindow>(dynasty_->session());
    window_->show();
    window_->RunGate();
    save_ = dynasty_->folder() / "SaveGame" / "spring.CMR";
  }
  void cleanup() {
    dynasty_->session().quitting = true;
    window_.reset();
    dynasty_.reset();
  }

  void aSaveAndALoadGiveBackTheSameDynasty() {
    dynasty_->ui().QueueFile(dynasty_->folder() / "SaveGame" / "spring");
    window_->Entry("mnuFileSave")->trigger();
    QCOMPARE(dynasty_->ui().DialogTitles().back(), std::string("Save"));
    QCOMPARE(dynasty_->ui().Messages().back(), "Your game has been saved to " + save_.string());
    const std::string saved = Dump(dynasty_->store());
    const std::string figures = SeasonFigures(dynasty_->session());

    dynasty_->PlayGame("Clemson", AppDynasty::kHuman, 3, "Saturday", true);
    dynasty_->store().Exec("UPDATE HeadCoach SET Name = 'Someone Else'");
    dynasty_->SetCalendar("Season", 9);
    window_->StoreChanged();
    window_->Entry("mnuManagementRoster")->trigger();
    QVERIFY(Dump(dynasty_->store()) != saved);
    QVERIFY(SeasonFigures(dynasty_->session()) != figures);

    dynasty_->ui().QueueFile(save_);
    window_->Entry("mnuFileLoad")->trigger();
    QCOMPARE(dynasty_->ui().DialogTitles().back(), std::string("Open"));
    QCOMPARE(Dump(dynasty_->store()), saved);
    QCOMPARE(SeasonFigures(dynasty_->session()), figures);
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Contact Period)"));
    // Every screen closed: the home screen stands alone.
    QCOMPARE(window_->Screens().size(), 1);
    QVERIFY(window_->Home());
    QVERIFY(!UnsavedChanges(dynasty_->session()));
  }

  void aDamagedFileIsRefusedAndTheDynastyStays() {
    dynasty_->ui().QueueFile(save_);
    window_->Entry("mnuFileSave")->trigger();
    std::string bytes = Read(save_);
    bytes[bytes.size() / 3] ^= 0x20;
    const auto damaged = dynasty_->folder() / "SaveGame" / "damaged.CMR";
    std::ofstream(damaged, std::ios::binary) << bytes;
    dynasty_->store().Exec("UPDATE HeadCoach SET Name = 'Changed Since'");
    const std::string before = Dump(dynasty_->store());

    dynasty_->ui().QueueFile(damaged);
    window_->Entry("mnuFileLoad")->trigger();
    QCOMPARE(dynasty_->ui().Messages().back(), std::string("This is not a valid SaveGame File"));
    QCOMPARE(Dump(dynasty_->store()), before);
    QCOMPARE(Read(damaged), bytes);
    QVERIFY(window_->Entry("mnuFileSave")->isEnabled());
  }

  void theIntrosLoadLabelLoadsASave() {
    dynasty_->ui().QueueFile(save_);
    window_->Entry("mnuFileSave")->trigger();
    dynasty_->store().Exec("DELETE FROM HeadCoach");
    window_->StoreChanged();
    QVERIFY(window_->Intro());

    dynasty_->ui().QueueFile(save_);
    QTest::mouseClick(window_->Intro()->findChild<QPushButton*>("lblLoad"), Qt::LeftButton);
    QCoreApplication::processEvents();
    QVERIFY(!window_->Intro());
    QCOMPARE(*dynasty_->store().ScalarText("SELECT Name FROM HeadCoach"),
             std::string("Pat O'Neil"));
    QCOMPARE(window_->windowTitle(), QString("Courtmere (Contact Period)"));
  }

  void aNameWithAnotherEndingIsIgnoredSilently() {
    const size_t messages = dynasty_->ui().Messages().size();
    dynasty_->ui().QueueFile(dynasty_->folder() / "notes.txt");
    window_->Entry("mnuFileLoad")->trigger();
    QCOMPARE(dynasty_->ui().Messages().size(), messages);
  }

  void quittingAsksFirst() {
    dynasty_->ui().QueueAnswer(false);
    window_->close();
    QCOMPARE(dynasty_->ui().Questions().back(), std::string("Are you sure you want to quit?"));
    QVERIFY(window_->isVisible());
    QVERIFY(dynasty_->session().StoreOpen());

    // Yes to quitting; the dynasty was never saved, so a save is offered: No.
    dynasty_->ui().QueueAnswer(true);
    dynasty_->ui().QueueAnswer(false);
    window_->close();
    QCOMPARE(dynasty_->ui().Questions().back(),
             std::string("Your dynasty has changed since it was last saved. Do you want to "
                         "save it before you quit?"));
    QVERIFY(!window_->isVisible());
    QVERIFY(!dynasty_->session().StoreOpen());
    QVERIFY(!std::filesystem::exists(save_));
    // The working store is left blank.
    Store left(dynasty_->session().folder.Store());
    QCOMPARE(left.RowCount("Team"), int64_t{0});
    QCOMPARE(left.RowCount("HeadCoach"), int64_t{0});
  }

  void quittingCanSaveFirst() {
    dynasty_->ui().QueueAnswer(true);
    dynasty_->ui().QueueAnswer(true);
    dynasty_->ui().QueueFile(save_);
    window_->close();
    QVERIFY(std::filesystem::exists(save_));
    QVERIFY(!window_->isVisible());
  }

  void aSavedDynastyQuitsWithOneQuestion() {
    dynasty_->ui().QueueFile(save_);
    window_->Entry("mnuFileSave")->trigger();
    const size_t asked = dynasty_->ui().Questions().size();
    window_->close();
    QCOMPARE(dynasty_->ui().Questions().size(), asked + 1);
    QVERIFY(!window_->isVisible());
  }

 private:
  std::unique_ptr<AppDynasty> dynasty_;
  std::unique_ptr<MainWindow> window_;
  std::filesystem::path save_;
};

}  // namespace courtmere::app

QTEST_MAIN(courtmere::app::SavedGamesTest)
#include "saved_games_test.moc"
