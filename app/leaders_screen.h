// frmLeaderBoard: the season's leaders of the nation or of a conference in
// the statistic picked from the list. A click on a player opens his card.
#pragma once

#include "app/scope.h"
#include "app/screen.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class LeadersScreen : public Screen {
  Q_OBJECT

 public:
  LeadersScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override { return ScopedKey("frmLeaderBoard", scope_); }
  void Refresh() override;

  QComboBox* Stats() const { return stats_; }
  QComboBox* Conferences() const { return conferences_; }
  GridView* Grid() const { return grid_; }

 private:
  Scope scope_;
  QComboBox* conferences_ = nullptr;  // null for the nation
  QComboBox* stats_;
  GridView* grid_;
};

}  // namespace courtmere::app
