// frmLeaders as the suspensions list (News > Player Suspensions): the players
// of a conference suspended for their marks, the user's conference first, any
// other by the list. A click on a player opens his card.
#pragma once

#include "app/screen.h"

class QComboBox;
class QLabel;

namespace courtmere::app {

class GridView;

class SuspensionsScreen : public Screen {
  Q_OBJECT

 public:
  SuspensionsScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Player Suspensions"; }
  QString Key() const override { return "frmSuspensions"; }
  void Refresh() override;

  QComboBox* Conferences() const { return conferences_; }
  GridView* Grid() const { return grid_; }
  QLabel* Notice() const { return notice_; }

 private:
  QComboBox* conferences_;
  GridView* grid_;
  QLabel* notice_;
};

}  // namespace courtmere::app
