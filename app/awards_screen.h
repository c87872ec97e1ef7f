// The award screens of the Headlines menu: the players of the week
// (frmPlayerWeek), the nation's honours with the All America teams
// (frmAATeam) and a conference's (frmACTeam). Each honour is one list, picked
// from the list above the grid; a click on a player opens his card.
#pragma once

#include <vector>

#include "app/screen.h"
#include "screens/award_lists.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class AwardsScreen : public Screen {
  Q_OBJECT

 public:
  enum class Kind { kPlayerOfWeek, kNational, kConference };

  AwardsScreen(Session& session, ScreenHost& host, Kind kind, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  QComboBox* Lists() const { return lists_; }
  QComboBox* Conferences() const { return conferences_; }
  GridView* Grid() const { return grid_; }

 private:
  void ShowList();
  // The column of the player's name; the school's stands after it.
  int PlayerColumn() const;

  Kind kind_;
  QComboBox* conferences_ = nullptr;  // only on the conference screen
  QComboBox* lists_;
  GridView* grid_;
  std::vector<AwardList> shown_;
};

}  // namespace courtmere::app
