#include "app/sim_games_screen.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QShortcut>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/sub_patterns_screen.h"
#include "screens/box_score_view.h"
#include "season/day_screen.h"
#include "season/day_step.h"
#include "season/season_run.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

QStringList DayHeadings() {
  QStringList headings;
  for (const char* column : kDayColumns) headings << column;
  return headings;
}

GridRow Row(const DayRow& r) {
  auto score = [&r](int points) {
    return r.Played() ? GridCell::Whole(points) : GridCell::Text("");
  };
  return {GridCell::Text(r.HomeShown),  score(r.HomeScore),
          GridCell::Text(r.AwayShown),  score(r.AwayScore),
          GridCell::Text(r.HomePoints), GridCell::Text(r.HomeRebounds),
          GridCell::Text(r.AwayPoints), GridCell::Text(r.AwayRebounds)};
}

}  // namespace

SimGamesScreen::SimGamesScreen(Session& session, ScreenHost& host, SeasonRun& run, QWidget* parent)
    : Screen(session, host, parent),
      run_(run),
      caption_(new QLabel(this)),
      grid_(new GridView(new GridModel(DayHeadings(), this), false, this)),
      notice_(new QLabel(this)),
      coachGame_(new QCheckBox("Coach this game", this)),
      coachFinish_(new QCheckBox("Coach the finish", this)) {
  setObjectName("frmSimGames");
  grid_->setObjectName("grdGames");
  notice_->setObjectName("lblNoGames");
  coachGame_->setObjectName("chkCoachGame");
  coachFinish_->setObjectName("chkCoachFinish");
  coachFinish_->setToolTip(
      "The game runs unattended until the last three minutes with the margin at 8 or less; "
      "then you coach the end game");
  // The two ways of coaching exclude each other.
  connect(coachGame_, &QCheckBox::toggled, this, [this](bool on) {
    run_.screen.coachGame = on;
    if (on) coachFinish_->setChecked(false);
  });
  connect(coachFinish_, &QCheckBox::toggled, this, [this](bool on) {
    run_.screen.coachFinish = on;
    if (on) coachGame_->setChecked(false);
  });
  auto* heading = new QLabel("TODAY'S SCHEDULED GAMES", this);
  heading->setStyleSheet("font-size: 14pt; font-weight: bold;");
  caption_->setStyleSheet("font-weight: bold;");
  notice_->setAlignment(Qt::AlignCenter);
  notice_->setStyleSheet("font-size: 16pt;");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  grid_->horizontalHeader()->setSectionResizeMode(2, QHeaderView::Stretch);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int) { OpenBoxScore(row); });
  prev_ = AddButton("cmdPrev", "Previous Day", [this] { PreviousDay(); });
  sim_ = AddButton("cmdSim", "Sim Day", [this] { SimDay(); });
  next_ = AddButton("cmdNext", "Next Day", [this] { NextDay(); });
  // Enter presses Sim Day, as the default button of the screen.
  for (const int key : {Qt::Key_Return, Qt::Key_Enter}) {
    auto* enter =
        new QShortcut(QKeySequence(key), this, nullptr, nullptr, Qt::WidgetWithChildrenShortcut);
    connect(enter, &QShortcut::activated, this, [this] {
      if (sim_->isEnabled()) sim_->click();
    });
  }
  sim_->setDefault(true);
  auto* buttons = new QHBoxLayout;
  buttons->addWidget(coachGame_);
  buttons->addWidget(coachFinish_);
  // The substitution patterns, to be set before a game as during one.
  buttons->addWidget(AddButton("cmdSubPatterns", "Sub Patterns", [this] {
    host_.OpenScreen(new SubPatternsScreen(session_, host_));
  }));
  buttons->addStretch();
  buttons->addWidget(prev_);
  buttons->addWidget(sim_);
  buttons->addWidget(next_);
  buttons->addWidget(AddButton("cmdClose", "Close", [this] { CloseWindow(); }));
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(heading);
  layout->addWidget(caption_);
  layout->addWidget(grid_, 1);
  layout->addWidget(notice_);
  layout->addLayout(buttons);
  resize(980, 640);
  run_.screen = OpenDayScreen(session_);
  Refresh();
}

void SimGamesScreen::Refresh() {
  const DayScreen& day = run_.screen;
  caption_->setText(ToQString(day.Caption() + " - " + day.shown.day));
  std::vector<GridRow> rows;
  for (const DayRow& r : day.rows) rows.push_back(Row(r));
  grid_->Model()->SetRows(std::move(rows));
  QStringList notice;
  for (const std::string& line : day.notice) notice << ToQString(line);
  notice_->setText(notice.join('\n'));
  notice_->setVisible(!notice.isEmpty());
  grid_->setVisible(notice.isEmpty() || !day.rows.empty());
  coachGame_->setVisible(day.userPlays);
  coachGame_->setChecked(day.coachGame);
  coachFinish_->setVisible(day.userPlays);
  coachFinish_->setChecked(day.coachFinish);
  sim_->setEnabled(day.simEnabled);
  next_->setEnabled(day.nextEnabled);
  prev_->setEnabled(day.prevEnabled);
}

// The step keeps the screen on the day it played, with its results.
void SimGamesScreen::SimDay() {
  sim_->setEnabled(false);
  host_.RunFlow([this] { courtmere::SimDay(run_); });
}

void SimGamesScreen::NextDay() {
  ShowNextDay(session_, run_.screen);
  Refresh();
}

void SimGamesScreen::PreviousDay() {
  ShowPreviousDay(session_, run_.screen);
  Refresh();
}

void SimGamesScreen::OpenBoxScore(int row) {
  const std::vector<DayRow>& rows = run_.screen.rows;
  if (row < 0 || row >= static_cast<int>(rows.size()) || !rows[row].Played()) return;
  if (const auto box = BoxScoreFile(session_.Db(), rows[row].GameNo, rows[row].Table)) {
    host_.OpenBoxScore(*box);
  }
}

}  // namespace courtmere::app
