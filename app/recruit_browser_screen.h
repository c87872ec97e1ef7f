// frmRecruit: the recruit pool one recruit at a time, his card with
// Previous and Next, and Add to put him on the user's list.
#pragma once

#include <vector>

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class RecruitCardView;

class RecruitBrowserScreen : public Screen {
  Q_OBJECT

 public:
  RecruitBrowserScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Recruits"; }
  void Refresh() override;

  RecruitCardView* Card() const { return card_; }
  void Step(int by);
  void AddShown();

 private:
  std::vector<int> ids_;
  size_t at_ = 0;
  QLabel* place_;
  RecruitCardView* card_;
};

}  // namespace courtmere::app
