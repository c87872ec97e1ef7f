#include "app/team_stats_screen.h"

#include <QComboBox>
#include <QHeaderView>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/school_list.h"
#include "screens/display_format.h"
#include "screens/team_stats.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

const QStringList kPlayerHeadings = {"Name", "Pos", "Year", "G",   "MPG", "PPG", "RPG", "APG",
                                     "SPG",  "BPG", "TOPG", "FG%", "3P%", "FT%", "+/-"};

GridCell Decimal(double value) {
  return GridCell::Number(value, FormatOneDecimal(value));
}

GridCell Percent(double fraction) {
  return GridCell::Number(fraction, FormatPercent(fraction));
}

GridRow PlayerRow(const PlayerStatRow& p) {
  const StatLine& s = p.Line;
  return {GridCell::Text(p.Name),
          GridCell::Text(p.Position),
          GridCell::Text(p.Year),
          GridCell::Whole(s.Games),
          Decimal(s.MPG),
          Decimal(s.PPG),
          Decimal(s.RPG),
          Decimal(s.APG),
          Decimal(s.SPG),
          Decimal(s.BPG),
          Decimal(s.TOPG),
          Percent(s.FGPercent),
          Percent(s.ThreePercent),
          Percent(s.FTPercent),
          GridCell::Whole(s.PlusMinus)};
}

}  // namespace

TeamStatsScreen::TeamStatsScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      schools_(SchoolList(session.Db(), session.humanSchool, this)),
      totals_(new GridView(new GridModel({"", "Team", "Opponents"}, this), false, this)),
      players_(new GridView(new GridModel(kPlayerHeadings, this), true, this)) {
  setObjectName("frmTeamStats");
  totals_->setObjectName("MSFlexTeam");
  players_->setObjectName("MSFlexPlayers");
  totals_->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  totals_->setSelectionMode(QAbstractItemView::NoSelection);
  players_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  players_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  connect(schools_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  connect(players_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == 0) host_.OpenPlayerCard(players_->Model()->Key(row));
  });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(schools_);
  layout->addWidget(totals_, 2);
  layout->addWidget(players_, 3);
  resize(900, 760);
  Refresh();
}

void TeamStatsScreen::Refresh() {
  const std::string school = ToStdString(schools_->currentText());
  std::vector<GridRow> totals;
  for (const TeamStatRow& row : TeamTotals(session_.Db(), school)) {
    totals.push_back(
        {GridCell::Text(row.Label), GridCell::Text(row.Team), GridCell::Text(row.Opponents)});
  }
  totals_->Model()->SetRows(std::move(totals));
  std::vector<GridRow> players;
  std::vector<int> ids;
  for (const PlayerStatRow& p : TeamPlayerStats(session_, school)) {
    players.push_back(PlayerRow(p));
    ids.push_back(p.Id);
  }
  players_->Model()->SetRows(std::move(players), std::move(ids));
}

}  // namespace courtmere::app
