// The main window's Recruit menu: the team recruiting screen, the regional
// and interested lists, and the magazines' rankings.
#include "app/main_window.h"
#include "app/recruit_board_screen.h"
#include "app/recruit_list_screen.h"
#include "recruiting/season_recruiting.h"
#include "store/session.h"

namespace courtmere::app {

void MainWindow::RegisterRecruitCommands() {
  On("mnuRecruitViewTeam",
     [this] { Show<RecruitBoardScreen>([this] { return Recruiting().Period(session_.config); }); });
  using Kind = RecruitListScreen::Kind;
  for (const char* region : {"East", "Midwest", "South", "West"}) {
    On((std::string("mnuRecruitViewRecruits") + region).c_str(),
       [this, region] { Show<RecruitListScreen>(Kind::kRegion, std::string(region)); });
  }
  On("mnuRecruitInterested", [this] { Show<RecruitListScreen>(Kind::kInterested); });
  On("mnuRecruitMagazine50", [this] { Show<RecruitListScreen>(Kind::kTop50); });
  const char* positions[] = {"mnuRecruitMagazinePG", "mnuRecruitMagazineSG", "mnuRecruitMagazineSF",
                             "mnuRecruitMagazinePF", "mnuRecruitMagazineC"};
  for (int p = 1; p <= 5; ++p) {
    On(positions[p - 1], [this, p] { Show<RecruitListScreen>(Kind::kPosition, std::string(), p); });
  }
}

}  // namespace courtmere::app
