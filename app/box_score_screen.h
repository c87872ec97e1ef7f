// frmBoxScore: both teams' lines of a played game, read from its box file.
// A click on a player's name opens his card.
#pragma once

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
  void NameClicked(const std::string& school, GridView* grid, int row, int column);

  std::filesystem::path file_;
  BoxScoreHeader header_;
  QLabel* homeHeading_ = nullptr;
  QLabel* awayHeading_ = nullptr;
  GridView* homeGrid_;
  GridView* awayGrid_;
};

}  // namespace courtmere::app
