// frmLeagueSelect, "CONFERENCE SETUP": the first screen of a new dynasty.
// The user looks over the low conferences and their schools, puts three on
// his list and continues to the team choice. Every rule and message is the
// ConferenceChoice's; this screen only shows its lists.
#pragma once

#include "app/screen.h"
#include "screens/conference_choice.h"

class QListWidget;

namespace courtmere::app {

class GridView;

class ConferenceChoiceScreen : public Screen {
  Q_OBJECT

 public:
  ConferenceChoiceScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return ConferenceChoice::kTitle; }
  bool SetsUpDynasty() const override { return true; }

  QListWidget* ConferenceList() const { return conferences_; }
  QListWidget* SchoolList() const { return schools_; }
  QListWidget* ChosenList() const { return chosen_; }
  GridView* Snapshot() const { return snapshot_; }

  // The buttons' actions.
  void AddConference();
  void RemoveConference();
  void Continue();

 private:
  void ShowSchools();
  void ShowSnapshot();
  void ShowChosen();

  ConferenceChoice choice_;
  QListWidget* conferences_;
  QListWidget* schools_;
  QListWidget* chosen_;
  GridView* snapshot_;
};

}  // namespace courtmere::app
