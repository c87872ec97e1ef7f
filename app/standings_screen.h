// frmStandings: a conference's standings, one table for each division where
// the conference has divisions, chosen from the list of conferences and
// opening on the user's; or the national standings of every school. The
// user's school stands in blue. A click on a heading sorts by that column.
#pragma once

#include <vector>

#include "app/scope.h"
#include "app/screen.h"

class QComboBox;
class QLabel;
class QVBoxLayout;

namespace courtmere::app {

class GridView;

class StandingsScreen : public Screen {
  Q_OBJECT

 public:
  StandingsScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  // The conference list; null in the national standings.
  QComboBox* Conferences() const { return conferences_; }
  const std::vector<GridView*>& Tables() const { return tables_; }

 private:
  Scope scope_;
  QComboBox* conferences_ = nullptr;
  QLabel* title_;
  QWidget* body_;
  QVBoxLayout* bodyLayout_;
  std::vector<GridView*> tables_;
};

}  // namespace courtmere::app
