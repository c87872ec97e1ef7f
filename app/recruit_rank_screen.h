// frmRank: the user ranks his recruits, 1 to 5, each a different rank. The
// ranks are written when he submits them; two equal ranks are refused and
// nothing is written.
#pragma once

#include <vector>

#include "app/screen.h"

class QComboBox;
class QFormLayout;
class QLabel;

namespace courtmere::app {

class RecruitRankScreen : public Screen {
  Q_OBJECT

 public:
  RecruitRankScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Rank Recruits"; }
  void Refresh() override;

  // The rank chosen for each recruit, in the list's order (0: none).
  QComboBox* RankOf(int playerId) const;
  void Submit();

 private:
  QLabel* title_;
  QFormLayout* form_;
  std::vector<std::pair<int, QComboBox*>> ranks_;
};

}  // namespace courtmere::app
