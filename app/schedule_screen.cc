#include "app/schedule_screen.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>
#include <filesystem>

#include "app/grid_model.h"
#include "app/school_list.h"
#include "schedule/calendar_slots.h"
#include "screens/game_log.h"
#include "screens/team_schedule.h"
#include "store/session.h"

namespace courtmere::app {
namespace {

QComboBox* ScopeSchools(Session& session, Scope scope, QWidget* parent) {
  if (scope == Scope::kNational) return SchoolList(session.Db(), session.humanSchool, parent);
  auto* list = new QComboBox(parent);
  list->setObjectName("cmbTeam");
  for (const std::string& s : ConferenceSchools(session.Db(), session.humanConference)) {
    list->addItem(ToQString(s));
  }
  list->setCurrentText(ToQString(session.humanSchool));
  return list;
}

GridRow Row(const ScheduleGame& g) {
  GridCell result = GridCell::Text(ResultText(g));
  result.sortKey = g.Played ? g.Score - g.OpponentScore : -1000;
  GridCell day = GridCell::Text(g.Day);
  day.sortKey = g.Week * 10 + DayOrder(g.Day);  // calendar order, not the alphabet
  return {GridCell::Whole(g.Week),    day,   GridCell::Text(g.Site), GridCell::Text(g.Opponent),
          GridCell::Text(g.GameType), result};
}

}  // namespace

ScheduleScreen::ScheduleScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent)
    : Screen(session, host, parent),
      scope_(scope),
      schools_(ScopeSchools(session, scope, this)),
      grid_(new GridView(new GridModel({"Week", "Day", "Site", "Opponent", "Game", "Result"}, this),
                         true, this)) {
  setObjectName("frmSchedule");
  grid_->setObjectName("grdSchedule");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(3, QHeaderView::Stretch);
  connect(schools_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  connect(grid_, &GridView::CellClicked, this, [this](int row, int) { OpenBoxScore(row); });
  auto* hint = new QLabel("Click a played game for its box score.", this);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(schools_);
  layout->addWidget(grid_, 1);
  layout->addWidget(hint);
  resize(640, 720);
  Refresh();
}

QString ScheduleScreen::Caption() const {
  return schools_->currentText() + " Schedule";
}

void ScheduleScreen::Refresh() {
  std::vector<GridRow> rows;
  boxScores_.clear();
  for (const ScheduleGame& g : TeamSchedule(session_.Db(), ToStdString(schools_->currentText()))) {
    rows.push_back(Row(g));
    boxScores_.push_back(g.Played ? g.BoxScore : std::string());
  }
  grid_->Model()->SetRows(std::move(rows));
  if (auto* window = parentWidget()) window->setWindowTitle(Caption());
}

// A game not played yet, or one whose box score was not kept, opens nothing.
void ScheduleScreen::OpenBoxScore(int row) {
  if (row < 0 || row >= static_cast<int>(boxScores_.size())) return;
  const std::filesystem::path box = boxScores_[row];
  std::error_code ec;
  if (box.empty() || !std::filesystem::is_regular_file(box, ec)) return;
  host_.OpenBoxScore(box);
}

}  // namespace courtmere::app
