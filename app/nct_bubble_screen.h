// NCT Bubble Watch (Headlines, from week 6): the schools on either side of
// the cut for the NCT's at-large places by the selection's score, and once
// the field is chosen the year's last four in and first four out.
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class NctBubbleScreen : public Screen {
  Q_OBJECT

 public:
  NctBubbleScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "NCT Bubble Watch"; }
  QString Key() const override { return "frmNCTBubble"; }
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  QLabel* Summary() const { return summary_; }

 private:
  QLabel* summary_;
  GridView* grid_;
};

}  // namespace courtmere::app
