#include "app/injuries_screen.h"

#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "screens/injuries.h"
#include "store/session.h"

namespace courtmere::app {

InjuriesScreen::InjuriesScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent)
    : Screen(session, host, parent),
      scope_(scope),
      grid_(new GridView(new GridModel({"Player", "Pos", "School", "Injury", "Weeks Out"}, this),
                         true, this)) {
  setObjectName("frmLeaders");
  grid_->setObjectName("grdInjuries");
  grid_->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  connect(grid_, &GridView::CellClicked, this, [this](int row, int column) {
    if (column == 0) host_.OpenPlayerCard(grid_->Model()->Key(row));
    if (column == 2) host_.OpenTeam(ToStdString(grid_->Model()->Cell(row, 2).text));
  });
  auto* layout = new QVBoxLayout(this);
  if (scope_ == Scope::kConference) {
    conferences_ = ConferenceList(session, this);
    connect(conferences_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
    layout->addWidget(conferences_);
  }
  layout->addWidget(grid_, 1);
  resize(680, 560);
  Refresh();
}

QString InjuriesScreen::Caption() const {
  return scope_ == Scope::kNational ? "National Injury Report" : "Conference Injury Report";
}

void InjuriesScreen::Refresh() {
  const std::string conference = conferences_ ? ToStdString(conferences_->currentText()) : "";
  std::vector<GridRow> rows;
  std::vector<int> ids;
  for (const InjuryRow& r : Injuries(session_.Db(), conference)) {
    rows.push_back({GridCell::Text(r.Name), GridCell::Text(r.Position), GridCell::Text(r.School),
                    GridCell::Text(r.Injury), GridCell::Whole(r.WeeksOut)});
    ids.push_back(r.PlayerId);
  }
  grid_->Model()->SetRows(std::move(rows), std::move(ids));
}

}  // namespace courtmere::app
