#include "app/standings_screen.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QScrollArea>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "league/standings.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

QStringList Headings(bool national) {
  QStringList headings = {"Team\nName"};
  if (national) headings << "\nConference";
  headings << "Conf\nWins"
           << "Conf\nLosses"
           << "Overall\nWins"
           << "Overall\nLosses"
           << "Win\nPct."
           << "Home\nWins"
           << "Home\nLosses"
           << "Away\nWins"
           << "Away\nLosses";
  return headings;
}

GridRow Row(const StandingsRow& r, bool national) {
  GridRow row = {GridCell::Text(r.SchoolName)};
  if (national) row.push_back(GridCell::Text(r.Conference));
  for (int n : {r.ConfWins, r.ConfLosses, r.TotalWins, r.TotalLosses}) {
    row.push_back(GridCell::Whole(n));
  }
  row.push_back(GridCell::Number(r.WinPercent, WinPctText(r.WinPercent)));
  for (int n : {r.HomeWins, r.HomeLosses, r.AwayWins, r.AwayLosses}) {
    row.push_back(GridCell::Whole(n));
  }
  if (r.User) {
    for (GridCell& cell : row) cell.color = kUserBlue;
  }
  return row;
}

GridView* Table(const StandingsTable& table, bool national, QWidget* parent) {
  auto* grid = new GridView(new GridModel(Headings(national), parent), true, parent);
  std::vector<GridRow> rows;
  for (const StandingsRow& r : table.Rows) rows.push_back(Row(r, national));
  grid->Model()->SetRows(std::move(rows));
  // The names take what they need, the figures share the rest.
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
  grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  if (national) grid->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  // A conference's table shows whole; the national one scrolls.
  if (!national) {
    const int rowHeight = grid->verticalHeader()->defaultSectionSize();
    grid->setMinimumHeight(rowHeight * static_cast<int>(table.Rows.size()) +
                           grid->horizontalHeader()->sizeHint().height() + 4);
  }
  return grid;
}

}  // namespace

StandingsScreen::StandingsScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent)
    : Screen(session, host, parent),
      scope_(scope),
      title_(new QLabel(this)),
      body_(new QWidget(this)),
      bodyLayout_(new QVBoxLayout(body_)) {
  setObjectName("frmStandings");
  title_->setStyleSheet("font-size: 14pt; font-weight: bold;");
  auto* layout = new QVBoxLayout(this);
  if (scope_ == Scope::kConference) {
    conferences_ = ConferenceList(session, this);
    connect(conferences_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    layout->addWidget(conferences_);
  }
  auto* scroll = new QScrollArea(this);
  scroll->setWidgetResizable(true);
  scroll->setWidget(body_);
  layout->addWidget(title_);
  layout->addWidget(scroll, 1);
  resize(scope_ == Scope::kNational ? 1000 : 900, 640);
  Refresh();
}

QString StandingsScreen::Caption() const {
  return scope_ == Scope::kNational ? "National Standings" : "Conference Standings";
}

QString StandingsScreen::Key() const {
  return ScopedKey("frmStandings", scope_);
}

void StandingsScreen::Refresh() {
  Store& store = session_.Db();
  const bool national = scope_ == Scope::kNational;
  const Standings standings =
      national ? NationalStandings(store)
               : ConferenceStandings(store, ToStdString(conferences_->currentText()));
  title_->setText(ToQString(standings.Title));
  while (QLayoutItem* item = bodyLayout_->takeAt(0)) {
    delete item->widget();
    delete item;
  }
  tables_.clear();
  for (const StandingsTable& table : standings.Tables) {
    if (!table.Division.empty()) {
      auto* label = new QLabel(ToQString(table.Division), body_);
      label->setStyleSheet("font-weight: bold;");
      bodyLayout_->addWidget(label);
    }
    tables_.push_back(Table(table, national, body_));
    GridView* grid = tables_.back();
    connect(grid, &GridView::CellClicked, this, [this, grid](int row, int column) {
      if (column == 0) host_.OpenTeam(ToStdString(grid->Model()->Cell(row, 0).text));
    });
    bodyLayout_->addWidget(tables_.back(), national ? 1 : 0);
  }
  if (!national) bodyLayout_->addStretch();
}

}  // namespace courtmere::app
