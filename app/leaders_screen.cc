#include "app/leaders_screen.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/leaders.h"
#include "store/session.h"

namespace courtmere::app {

LeadersScreen::LeadersScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent)
    : Screen(session, host, parent),
      scope_(scope),
      stats_(new QComboBox(this)),
      grid_(new GridView(new GridModel({"Rank", "Player", "Pos", "School", "G", "PPG"}, this), true,
                         this)) {
  setObjectName("frmLeaderBoard");
  stats_->setObjectName("cmbStat");
  grid_->setObjectName("grdLeaders");
  for (const LeaderStatInfo& info : LeaderStats()) stats_->addItem(info.Name);
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
  connect(stats_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  connect(grid_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == 1) host_.OpenPlayerCard(grid_->Model()->Key(row));
    if (column == 3) host_.OpenTeam(ToStdString(grid_->Model()->Cell(row, 3).text));
  });
  auto* choices = new QHBoxLayout;
  if (scope_ == Scope::kConference) {
    conferences_ = ConferenceList(session, this);
    connect(conferences_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    choices->addWidget(conferences_);
  }
  choices->addWidget(stats_);
  auto* layout = new QVBoxLayout(this);
  layout->addLayout(choices);
  layout->addWidget(grid_, 1);
  resize(640, 720);
  Refresh();
}

QString LeadersScreen::Caption() const {
  return scope_ == Scope::kNational ? "National Leaders" : "Conference Leaders";
}

void LeadersScreen::Refresh() {
  const LeaderStatInfo& info = LeaderStats().at(stats_->currentIndex());
  const LeaderStat stat = info.Stat;
  grid_->Model()->SetHeading(5, info.Column);
  const std::string conference = conferences_ ? ToStdString(conferences_->currentText()) : "";
  std::vector<GridRow> rows;
  std::vector<int> ids;
  for (const LeaderLine& r : Leaders(session_, conference, stat)) {
    rows.push_back({GridCell::Whole(r.Rank), GridCell::Text(r.Name), GridCell::Text(r.Position),
                    GridCell::Text(r.School), GridCell::Whole(r.Games),
                    GridCell::Number(r.Value, r.ValueText)});
    ids.push_back(r.PlayerId);
  }
  grid_->Model()->SetRows(std::move(rows), std::move(ids));
}

}  // namespace courtmere::app
