#include "app/scout_screen.h"

#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/pair_grid.h"
#include "screens/roster_view.h"
#include "screens/scout_report.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QStringList RosterHeadings() {
  QStringList headings = {"Player", "Pos", "Year", "Ht", "Ovr"};
  for (std::string_view label : kGradeLabels) headings << ToQString(label);
  return headings;
}

}  // namespace

ScoutScreen::ScoutScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      title_(new QLabel(this)),
      facts_(NewPairGrid(this)),
      tactics_(NewPairGrid(this)),
      leaders_(new GridView(new GridModel({"Leader in", "Player", "Per Game"}, this), false, this)),
      roster_(new GridView(new GridModel(RosterHeadings(), this), true, this)) {
  setObjectName("frmScoutOpp");
  title_->setObjectName("lblOpponent");
  title_->setWordWrap(true);
  title_->setStyleSheet("font-size: 13pt; font-weight: bold;");
  leaders_->setObjectName("grdLeaders");
  roster_->setObjectName("grdRoster");
  leaders_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  leaders_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  roster_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  roster_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  for (GridView* grid : {leaders_, roster_}) {
    connect(grid, &GridView::CellClicked, this, [this, grid](int row, int column) {
      if (column == (grid == leaders_ ? 1 : 0)) host_.OpenPlayerCard(grid->Model()->Key(row));
    });
  }
  auto* top = new QHBoxLayout;
  top->addWidget(facts_, 1, Qt::AlignTop);
  top->addWidget(tactics_, 1, Qt::AlignTop);
  top->addWidget(leaders_, 1, Qt::AlignTop);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title_);
  layout->addLayout(top);
  layout->addWidget(roster_, 1);
  resize(960, 560);
  Refresh();
}

void ScoutScreen::Refresh() {
  const std::optional<ScoutReport> report = ScoutNextOpponent(session_);
  if (!report) {
    title_->setText("No game is left on your schedule.");
    ShowPairs(facts_, {});
    ShowPairs(tactics_, {});
    leaders_->Model()->SetRows({});
    roster_->Model()->SetRows({});
    return;
  }
  title_->setText(ToQString(report->Game));
  const TeamTactics& t = report->Tactics;
  ShowPairs(facts_, {{"Opponent", report->Opponent},
                     {"Conference", report->Conference},
                     {"Record", report->Record},
                     {"Poll", report->PollRank},
                     {"CRI", report->CriRank}});
  ShowPairs(tactics_, {{"Tempo", t.Tempo},
                       {"Offense", t.OffenseType},
                       {"Defense", t.Defense},
                       {"Press", t.Press},
                       {"Graded by", report->Scout.empty() ? "no head scout" : report->Scout}});
  for (GridView* grid : {facts_, tactics_}) {
    grid->setFixedHeight(grid->verticalHeader()->length() + 2 * grid->frameWidth());
  }
  std::vector<GridRow> leaders;
  std::vector<int> leaderIds;
  for (const ScoutLeader& l : report->Leaders) {
    leaders.push_back({GridCell::Text(l.Stat), GridCell::Text(l.Name),
                       GridCell::Number(std::stod(l.Value), l.Value)});
    leaderIds.push_back(l.PlayerId);
  }
  leaders_->Model()->SetRows(std::move(leaders), std::move(leaderIds));
  leaders_->setFixedHeight(leaders_->horizontalHeader()->height() +
                           leaders_->verticalHeader()->length() + 2 * leaders_->frameWidth());
  std::vector<GridRow> roster;
  std::vector<int> ids;
  for (const ScoutedPlayer& p : report->Roster) {
    GridRow row = {GridCell::Text(p.Name), GridCell::Text(p.Position), GridCell::Text(p.Year),
                   GridCell::Text(p.Height), GridCell::Whole(p.Overall)};
    for (const std::string& grade : p.Grades) row.push_back(GridCell::Text(grade));
    roster.push_back(std::move(row));
    ids.push_back(p.Id);
  }
  roster_->Model()->SetRows(std::move(roster), std::move(ids));
}

}  // namespace courtmere::app
