#include "app/team_info_screen.h"

#include <QComboBox>
#include <QVBoxLayout>

#include "app/grid_model.h"
#include "app/pair_grid.h"
#include "app/school_list.h"
#include "screens/team_info.h"
#include "store/session.h"

namespace courtmere::app {

TeamInfoScreen::TeamInfoScreen(Session& session, ScreenHost& host, const std::string& school,
                               QWidget* parent)
    : Screen(session, host, parent),
      key_(ToQString(school)),
      schools_(SchoolList(session.Db(), school.empty() ? session.humanSchool : school, this)),
      grid_(NewPairGrid(this)) {
  setObjectName("frmTeamInfo");
  connect(schools_, &QComboBox::currentIndexChanged, this, [this] { Refresh(); });
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(schools_);
  layout->addWidget(grid_);
  resize(440, 700);
  Refresh();
}

void TeamInfoScreen::Refresh() {
  LabelValues pairs;
  for (const InfoLine& line : TeamInfo(session_.Db(), ToStdString(schools_->currentText()))) {
    pairs.emplace_back(line.Label, line.Value);
  }
  ShowPairs(grid_, pairs);
}

}  // namespace courtmere::app
