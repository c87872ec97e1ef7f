// frmSchedGames: the user's non-conference games in one of two views (the
// games before week 5, or those after it). Each game the user may change
// stands in a box with its list of schools, the present opponent first; the
// user picks one school in every list and submits. The lists, the rules and
// the messages are those of the non-conference screen logic.
#pragma once

#include <vector>

#include "app/screen.h"
#include "screens/nonconf_screen.h"

class QLabel;
class QGridLayout;

namespace courtmere::app {

class GridView;

class NonConfGamesScreen : public Screen {
  Q_OBJECT

 public:
  NonConfGamesScreen(Session& session, ScreenHost& host, NonConfView view,
                     QWidget* parent = nullptr);

  QString Caption() const override { return ToQString(screen_.Title); }
  QString Key() const override;
  // Draws the lists again, keeping the schools picked where they still stand.
  void Refresh() override;

  const NonConfScreen& Shown() const { return screen_; }
  // The list of the game at `row` of the view; null for a game not offered.
  GridView* List(size_t row) const { return lists_.at(row); }
  // Picks a school in a game's list, as a click would; false when it is not
  // in the list.
  bool Pick(size_t row, const QString& school);
  // The Submit button.
  void Submit();

 private:
  std::vector<std::string> Picked() const;
  void Build(const std::vector<std::string>& picked);

  NonConfView view_;
  NonConfScreen screen_;
  QLabel* title_;
  QWidget* games_;
  QGridLayout* gamesLayout_;
  std::vector<GridView*> lists_;
};

}  // namespace courtmere::app
