// frmRecRegion and frmViewRecruit: the recruit pool listed by region, by
// the user's school on the recruits' lists (Team1, Team2 or Team3), by the
// magazines' ranks at a position, or the national top 50. Every column
// sorts; the list can be narrowed to a position and to the recruits still
// uncommitted. A click shows the recruit's card; Add puts him on the user's
// list after its question.
#pragma once

#include <string>

#include "app/screen.h"

class QCheckBox;
class QComboBox;
class QLabel;

namespace courtmere::app {

class GridView;
class RecruitCardView;

class RecruitListScreen : public Screen {
  Q_OBJECT

 public:
  enum class Kind { kRegion, kInterested, kPosition, kTop50 };
  // `region` for kRegion, `position` (1 to 5) for kPosition.
  RecruitListScreen(Session& session, ScreenHost& host, Kind kind, std::string region = {},
                    int position = 0, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  RecruitCardView* Card() const { return card_; }
  QComboBox* PositionFilter() const { return positionFilter_; }
  QCheckBox* UncommittedOnly() const { return uncommitted_; }
  QComboBox* Slot() const { return slot_; }
  // Adds the recruit of the selected row, after the question.
  void AddSelected();

 private:
  Kind kind_;
  std::string region_;
  int position_;
  QLabel* title_;
  QComboBox* slot_;
  QComboBox* positionFilter_;
  QCheckBox* uncommitted_;
  GridView* grid_;
  RecruitCardView* card_;
};

}  // namespace courtmere::app
