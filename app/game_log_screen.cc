#include "app/game_log_screen.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/box_score_view.h"
#include "screens/game_log.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

// The first column holds the game's number and is not meant to be read.
const QStringList kHeadings = {"GameNo", "Week", "GameDay", "Team", "Record", "Result", "Score"};

GridRow GridRowOf(const GameLogRow& game) {
  return {GridCell::Whole(game.GameNo), GridCell::Whole(game.Week),  GridCell::Text(game.GameDay),
          GridCell::Text(game.Team),    GridCell::Text(game.Record), GridCell::Text(game.Result),
          GridCell::Text(game.Score)};
}

void Fill(QComboBox* box, const std::vector<std::string>& items) {
  QSignalBlocker block(box);
  box->clear();
  for (const std::string& item : items) box->addItem(ToQString(item));
}

}  // namespace

GameLogScreen::GameLogScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      conferences_(new QComboBox(this)),
      schools_(new QComboBox(this)),
      grid_(new GridView(new GridModel(kHeadings, this), false, this)),
      boxScore_(new QPushButton("Box Score", this)) {
  setObjectName("frmGameLog");
  conferences_->setObjectName("cmbNational");
  schools_->setObjectName("cmbTeamSelect");
  grid_->setObjectName("MSFlexGameLog");
  grid_->setColumnHidden(0, true);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
  boxScore_->setObjectName("cmdBoxScore");
  auto* close = new QPushButton("Close", this);
  close->setObjectName("cmdClose");

  connect(conferences_, &QComboBox::currentIndexChanged, this, [this] {
    FillSchools();
    BuildGrid();
  });
  connect(schools_, &QComboBox::currentIndexChanged, this, [this] { BuildGrid(); });
  connect(grid_, &GridView::CellClicked, this, [this](int row, int) { OpenLog(row); });
  connect(boxScore_, &QPushButton::clicked, this, [this] { OpenBoxScore(); });
  connect(close, &QPushButton::clicked, this, [this] { CloseWindow(); });

  auto* choose = new QHBoxLayout;
  choose->addWidget(new QLabel("Conference", this));
  choose->addWidget(conferences_, 1);
  choose->addWidget(new QLabel("School", this));
  choose->addWidget(schools_, 1);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(boxScore_);
  buttons->addWidget(close);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choose);
  layout->addWidget(grid_);
  layout->addLayout(buttons);
  resize(640, 560);

  // Design decision: the screen opens on the user's school.
  Fill(conferences_, GameLogConferences(session_.Db()));
  ShowSchool(session_.humanConference, session_.humanSchool);
}

void GameLogScreen::ShowSchool(const std::string& conference, const std::string& school) {
  {
    QSignalBlocker block(conferences_);
    const int at = conferences_->findText(ToQString(conference));
    if (at >= 0) conferences_->setCurrentIndex(at);
  }
  FillSchools();
  {
    QSignalBlocker block(schools_);
    const int at = schools_->findText(ToQString(school));
    if (at >= 0) schools_->setCurrentIndex(at);
  }
  BuildGrid();
}

void GameLogScreen::Refresh() {
  ShowSchool(ToStdString(conferences_->currentText()), ToStdString(schools_->currentText()));
}

void GameLogScreen::FillSchools() {
  Fill(schools_, ConferenceSchools(session_.Db(), ToStdString(conferences_->currentText())));
}

void GameLogScreen::BuildGrid() {
  std::vector<GridRow> rows;
  std::vector<int> keys;
  for (const GameLogRow& game : TeamGameLog(session_.Db(), ToStdString(schools_->currentText()))) {
    rows.push_back(GridRowOf(game));
    keys.push_back(game.GameNo);
  }
  grid_->Model()->SetRows(std::move(rows), std::move(keys));
}

void GameLogScreen::OpenLog(int row) {
  const int gameNo = grid_->Model()->Key(row);
  if (gameNo == 0) return;
  const auto log = GameLogFile(session_.Db(), gameNo, ToStdString(conferences_->currentText()));
  if (log) host_.OpenTextFile(*log);
}

void GameLogScreen::OpenBoxScore() {
  const int row = grid_->SelectedRow();
  if (row < 0) return;
  const std::string table =
      ConferenceScheduleTable(session_.Db(), ToStdString(conferences_->currentText()));
  if (const auto box = BoxScoreFile(session_.Db(), grid_->Model()->Key(row), table)) {
    host_.OpenBoxScore(*box);
  }
}

}  // namespace courtmere::app
