// frmPlayerCard: one player as his school's scout sees him, with his season
// and career figures.
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;
class PlayerCareerView;

class PlayerCardScreen : public Screen {
  Q_OBJECT

 public:
  PlayerCardScreen(Session& session, ScreenHost& host, int playerId, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

 private:
  int playerId_;
  QString name_;
  QLabel* title_;
  QLabel* details_;
  GridView* grades_;
  GridView* figures_;
  PlayerCareerView* career_;
};

}  // namespace courtmere::app
