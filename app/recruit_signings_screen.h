// News > Recruit Signings, "National recruit signings": every recruit who
// has chosen, by school, with his ranks (an empty rank sorts as 99), and the
// nation's recruiting classes beside it.
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class RecruitSigningsScreen : public Screen {
  Q_OBJECT

 public:
  RecruitSigningsScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "National recruit signings"; }
  QString Key() const override { return "frmRecruitSignings"; }
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  GridView* Classes() const { return classes_; }

 private:
  GridView* grid_;
  GridView* classes_;
  QLabel* notice_;
};

}  // namespace courtmere::app
