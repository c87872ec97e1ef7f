// frmBoxScore: both teams' lines of a played game, read from its box file:
// a table a side, the starters first, the men who did not play marked DNP,
// the team's totals at the foot. A click on a player's name opens his card,
// a click on a school's name its Team Info.
#pragma once

#include <array>
#include <filesystem>

#include "app/screen.h"
#include "screens/box_score_view.h"

class QLabel;

namespace courtmere::app {

class GridModel;
class GridView;

class BoxScoreScreen : public Screen {
  Q_OBJECT

 public:
  BoxScoreScreen(Session& session, ScreenHost& host, std::filesystem::path file,
                 QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  GridView* HomeGrid() const { return homeGrid_; }
  GridView* AwayGrid() const { return awayGrid_; }

 private:
  GridView* AddSide(const QString& name, QLabel*& heading);
  static void FitTable(GridView* grid);
  void FitToScreen(QWidget& page);
  void NameClicked(size_t side, int row, int column);

  std::filesystem::path file_;
  std::array<BoxTable, 2> tables_;
  QLabel* homeHeading_ = nullptr;
  QLabel* awayHeading_ = nullptr;
  GridView* homeGrid_;
  GridView* awayGrid_;
};

}  // namespace courtmere::app
