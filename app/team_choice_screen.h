// frmTeamSelect: the second screen of a new dynasty. The user looks over the
// schools of his nine conferences, may randomize or restore their prestige,
// picks his school, gives his name and starts; the league is then set up
// under the progress window and the menus open on the new dynasty. Every
// rule and message is the TeamChoice's.
#pragma once

#include "app/screen.h"
#include "screens/team_choice.h"

class QLineEdit;
class QListWidget;
class QRadioButton;

namespace courtmere::app {

class GridView;

class TeamChoiceScreen : public Screen {
  Q_OBJECT

 public:
  TeamChoiceScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Choose Your School"; }
  bool SetsUpDynasty() const override { return true; }

  QListWidget* ConferenceList() const { return conferences_; }
  QListWidget* SchoolList() const { return schools_; }
  GridView* Grid() const { return grid_; }
  QLineEdit* CoachName() const { return coach_; }
  QRadioButton* DefaultOption() const { return optDefault_; }

  // The buttons' actions.
  void ChangePrestige();
  void Start();

 private:
  void ShowSchools();
  void ShowGrid();

  TeamChoice choice_;
  QListWidget* conferences_;
  QListWidget* schools_;
  GridView* grid_;
  QRadioButton* optDefault_;
  QRadioButton* optRandom_;
  QLineEdit* coach_;
};

}  // namespace courtmere::app
