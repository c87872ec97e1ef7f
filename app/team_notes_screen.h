// frmNews, "Team Notes": the season's notes and kept letters, newest week
// first; a click on one shows its text below the list.
#pragma once

#include <vector>

#include "app/screen.h"
#include "screens/team_notes.h"

class QPlainTextEdit;

namespace courtmere::app {

class GridView;

class TeamNotesScreen : public Screen {
  Q_OBJECT

 public:
  TeamNotesScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Team Notes"; }
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  QPlainTextEdit* Text() const { return text_; }

 private:
  void ShowNote(int row);

  GridView* grid_;
  QPlainTextEdit* text_;
  std::vector<TeamNote> notes_;
};

}  // namespace courtmere::app
