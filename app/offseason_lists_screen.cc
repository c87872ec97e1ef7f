#include "app/offseason_lists_screen.h"

#include <fmt/format.h>

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "league/head_coach.h"
#include "people/player.h"
#include "screens/development_report.h"
#include "screens/draft_list.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

QStringList Headings(OffseasonListScreen::Kind kind) {
  switch (kind) {
    case OffseasonListScreen::Kind::kDraft:
      return {"Pick(OVR)", "Team", "Name", "Ht.", "Pos.", "School", "PPG", "RPG", "APG"};
    case OffseasonListScreen::Kind::kLeavers:
      return {"Name", "Year", "Team", "Reason"};
    case OffseasonListScreen::Kind::kDevelopment:
      break;
  }
  return {"Name",     "Pos.",    "Year",       "Athletic",     "Scoring",
          "Shooting", "Outside", "Rebounding", "Per. Defense", "Post Defense",
          "Handling", "Passing", "Study"};
}

GridCell Average(double value) {
  return GridCell::Number(value, fmt::format("{:.1f}", value));
}

}  // namespace

OffseasonListScreen::OffseasonListScreen(Session& session, ScreenHost& host, Kind kind,
                                         QWidget* parent)
    : Screen(session, host, parent),
      kind_(kind),
      grid_(new GridView(new GridModel(Headings(kind), this), true, this)),
      notice_(new QLabel(this)) {
  setObjectName(kind == Kind::kDevelopment ? "frmDevelopment"
                : kind == Kind::kDraft     ? "frmDraft"
                                           : "frmLeaders");
  grid_->setObjectName("grdOffseason");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setStretchLastSection(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(grid_, 1);
  layout->addWidget(notice_);
  resize(kind == Kind::kDraft ? 900 : 980, 520);
  Refresh();
}

QString OffseasonListScreen::Caption() const {
  switch (kind_) {
    case Kind::kDraft:
      return ToQString(DraftTitle(session_.config.CurrYear));
    case Kind::kLeavers:
      return "Players Leaving Early";
    case Kind::kDevelopment:
      break;
  }
  return "Player Development Report";
}

QString OffseasonListScreen::Key() const {
  return QString("frmOffseasonList%1").arg(static_cast<int>(kind_));
}

void OffseasonListScreen::Refresh() {
  switch (kind_) {
    case Kind::kDraft:
      return ShowDraft();
    case Kind::kLeavers:
      return ShowLeavers();
    case Kind::kDevelopment:
      return ShowDevelopment();
  }
}

void OffseasonListScreen::ShowDraft() {
  std::vector<GridRow> rows;
  for (const DraftPick& p : courtmere::ShowDraft(session_.Db())) {
    rows.push_back({GridCell::Whole(p.Pick), GridCell::Text(p.Team), GridCell::Text(p.Name),
                    GridCell::Text(p.Height), GridCell::Text(p.Position), GridCell::Text(p.School),
                    Average(p.PPG), Average(p.RPG), Average(p.APG)});
  }
  notice_->setText(rows.empty() ? "The draft has not been run this year." : "");
  grid_->Model()->SetRows(std::move(rows), {});
}

void OffseasonListScreen::ShowLeavers() {
  std::vector<GridRow> rows;
  for (const EarlyLeaver& l : PlayersLeavingEarly(session_.Db())) {
    rows.push_back({GridCell::Text(l.Name), GridCell::Text(l.PlayerYear), GridCell::Text(l.Team),
                    GridCell::Text(l.Reason)});
  }
  notice_->setText(rows.empty() ? "No player is leaving early." : "");
  grid_->Model()->SetRows(std::move(rows), {});
}

void OffseasonListScreen::ShowDevelopment() {
  std::vector<GridRow> rows;
  std::vector<int> ids;
  for (const DevelopmentLine& line : DevelopmentReport(session_.Db(), session_.humanSchool)) {
    GridRow row = {GridCell::Text(line.Name), GridCell::Text(PositionName(line.PlayerPosition)),
                   GridCell::Text(line.PlayerYear)};
    for (const GradeChange& g : line.grades)
      row.push_back(GridCell::Text(g.before + " > " + g.after));
    row.push_back(GridCell::Text(line.study));
    rows.push_back(std::move(row));
    ids.push_back(line.Id);
  }
  notice_->setText(rows.empty() ? "Your players have not trained yet." : "");
  grid_->Model()->SetRows(std::move(rows), std::move(ids));
}

}  // namespace courtmere::app
