#include "app/team_info_screen.h"

#include <QComboBox>
#include <QHeaderView>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/school_list.h"
#include "screens/team_info.h"
#include "store/session.h"

namespace courtmere::app {

TeamInfoScreen::TeamInfoScreen(Session& session, ScreenHost& host, QWidget* parent)
    : Screen(session, host, parent),
      schools_(SchoolList(session.Db(), session.humanSchool, this)),
      grid_(new GridView(new GridModel({"", ""}, this), false, this)) {
  setObjectName("frmTeamInfo");
  grid_->horizontalHeader()->hide();
  grid_->horizontalHeader()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
  grid_->horizontalHeader()->setStretchLastSection(true);
  grid_->setSelectionMode(QAbstractItemView::NoSelection);
  connect(schools_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(schools_);
  layout->addWidget(grid_);
  resize(440, 700);
  Refresh();
}

void TeamInfoScreen::Refresh() {
  std::vector<GridRow> rows;
  for (const InfoLine& line : TeamInfo(session_.Db(), ToStdString(schools_->currentText()))) {
    GridCell label = GridCell::Text(line.Label);
    rows.push_back({label, GridCell::Text(line.Value)});
  }
  grid_->Model()->SetRows(std::move(rows));
}

}  // namespace courtmere::app
