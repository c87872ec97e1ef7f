// frmTeamRecruit, the team recruiting screen: the user's recruits in his
// ranking's order with the season's counts, this week's decision, the
// points, the scouts' estimate of the top rival bid and the scholarships;
// blue for a man bound for the NBA, green for a junior-college recruit, red
// for one who cannot sign. Below it the week's action and bid, Clear
// Decision, the scholarship offers with their scrolls, Remove and Rank; a
// click on a row shows the recruit's card beside the list.
#pragma once

#include <functional>

#include "app/screen.h"
#include "recruiting/recruit_reply.h"
#include "recruiting/recruiting_period.h"

class QCloseEvent;
class QComboBox;
class QLabel;

namespace courtmere::app {

class GridView;
class RecruitCardView;

class RecruitBoardScreen : public Screen {
  Q_OBJECT

 public:
  using PeriodSource = std::function<RecruitingPeriod()>;
  RecruitBoardScreen(Session& session, ScreenHost& host, PeriodSource period,
                     QWidget* parent = nullptr);

  QString Caption() const override { return "Team Recruiting"; }
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  QComboBox* Actions() const { return actions_; }
  QComboBox* Bids() const { return bids_; }
  RecruitCardView* Card() const { return card_; }
  // Selects the row of a recruit (as a click on it does).
  void SelectRecruit(int playerId);

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  void FillBids();
  int SelectedRecruit() const;
  void Bid();
  void Operate(const std::function<RecruitReply(Session&, int)>& operation);
  // Leaving the screen with five recruits of whom one has no rank is refused.
  bool MayLeave();

  PeriodSource period_;
  int pointsLeft_ = 0;
  QLabel* title_;
  QLabel* periodLabel_;
  QLabel* points_;
  QLabel* scrolls_;
  GridView* grid_;
  QComboBox* actions_;
  QComboBox* bids_;
  RecruitCardView* card_;
};

}  // namespace courtmere::app
