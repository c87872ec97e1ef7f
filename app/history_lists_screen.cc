#include "app/history_lists_screen.h"

#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "history/coach_rank.h"
#include "screens/coach_career.h"
#include "screens/tourney_history.h"
#include "store/session.h"

namespace courtmere::app {

namespace {

template <size_t N>
QStringList Headings(const std::array<const char*, N>& columns) {
  QStringList headings;
  for (const char* c : columns) headings << c;
  return headings;
}

QStringList HeadingsOf(HistoryListScreen::List list) {
  switch (list) {
    case HistoryListScreen::List::kCoach:
      return Headings(kCoachHistoryColumns);
    case HistoryListScreen::List::kTopCoaches:
      return {"Coach", "Team", "Record", "Team Result"};
    default:
      return Headings(kTourneyHistoryColumns);
  }
}

template <size_t N>
GridRow TextRow(const std::array<std::string, N>& cells) {
  GridRow row;
  for (const std::string& cell : cells) row.push_back(GridCell::Text(cell));
  return row;
}

}  // namespace

HistoryListScreen::HistoryListScreen(Session& session, ScreenHost& host, List list, QWidget* parent)
    : Screen(session, host, parent),
      list_(list),
      title_(new QLabel(this)),
      grid_(new GridView(new GridModel(HeadingsOf(list), this), false, this)) {
  setObjectName(list == List::kCoach        ? "frmCoachHistory"
                : list == List::kTopCoaches ? "frmTopCoaches"
                                            : "frmNCTHistory");
  grid_->setObjectName("grdHistory");
  title_->setObjectName("lblTitle");
  title_->setTextFormat(Qt::RichText);
  title_->setWordWrap(true);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setStretchLastSection(true);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(title_);
  layout->addWidget(grid_, 1);
  resize(list == List::kTopCoaches ? 640 : 980, 480);
  Refresh();
}

QString HistoryListScreen::Caption() const {
  switch (list_) {
    case List::kCoach:
      return "Coach History";
    case List::kTopCoaches:
      return "Top 10 Coaches";
    case List::kNct:
      return "NCT History";
    case List::kAct:
      return "ACT History";
  }
  return {};
}

QString HistoryListScreen::Key() const {
  return QString("HistoryList:%1").arg(static_cast<int>(list_));
}

void HistoryListScreen::Refresh() {
  switch (list_) {
    case List::kCoach:
      ShowCoach();
      break;
    case List::kTopCoaches:
      ShowTopCoaches();
      break;
    case List::kNct:
      ShowTourney("NCTHistory");
      break;
    case List::kAct:
      ShowTourney("ACTHistory");
      break;
  }
}

void HistoryListScreen::ShowCoach() {
  const CoachCareer c = ReadCoachCareer(session_.Db());
  const int games = c.wins + c.losses;
  title_->setText(
      QString("<span style='font-size:14pt'><b>%1</b></span>, head coach of %2<br>"
              "<b>Seasons:</b> %3 &nbsp; <b>Record:</b> %4-%5 (%6) &nbsp; <b>Conference "
              "titles:</b> %7<br><b>NCT:</b> %8 apps, %9-%10, %11 Final Fours, %12 titles "
              "&nbsp; <b>ACT:</b> %13 apps, %14-%15, %16 Final Fours, %17 titles")
          .arg(ToQString(c.name).toHtmlEscaped(), ToQString(c.team).toHtmlEscaped())
          .arg(c.seasons)
          .arg(c.wins)
          .arg(c.losses)
          .arg(games > 0 ? static_cast<double>(c.wins) / games : 0.0, 0, 'f', 3)
          .arg(c.confChamps)
          .arg(c.nctApps)
          .arg(c.nctWins)
          .arg(c.nctLosses)
          .arg(c.nctFinalFours)
          .arg(c.nctChamps)
          .arg(c.actApps)
          .arg(c.actWins)
          .arg(c.actLosses)
          .arg(c.actFinalFours)
          .arg(c.actChamps));
  std::vector<GridRow> rows;
  for (const auto& row : c.history) rows.push_back(TextRow(row));
  grid_->Model()->SetRows(std::move(rows));
}

void HistoryListScreen::ShowTopCoaches() {
  const std::vector<TopCoachRow> top = TopCoaches(session_.Db());
  title_->setText(top.empty() ? QString("The top coaches are named when the season ends.")
                              : QString("<span style='font-size:14pt'><b>Top 10 Coaches for "
                                        "%1</b></span>")
                                    .arg(session_.config.CurrYear));
  std::vector<GridRow> rows;
  for (const TopCoachRow& r : top) {
    GridRow row{GridCell::Text(r.coach), GridCell::Text(r.team), GridCell::Text(r.record),
                GridCell::Text(r.result)};
    if (r.team == session_.humanSchool) {
      for (GridCell& cell : row) cell.color = kUserBlue;
    }
    rows.push_back(std::move(row));
  }
  grid_->Model()->SetRows(std::move(rows));
}

void HistoryListScreen::ShowTourney(const char* table) {
  title_->setText(QString("<span style='font-size:14pt'><b>%1 Year By Year History</b></span>")
                      .arg(list_ == List::kNct ? "NCT" : "ACT"));
  std::vector<GridRow> rows;
  for (const auto& row : TourneyHistory(session_.Db(), table)) rows.push_back(TextRow(row));
  grid_->Model()->SetRows(std::move(rows));
}

}  // namespace courtmere::app
