// frmCRI, "College Rating Index": every school in the order of the index,
// with its record, its index, its win fraction and its schedule's strength;
// the user's school in blue. A click on a heading sorts by that column.
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class CriScreen : public Screen {
  Q_OBJECT

 public:
  CriScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "College Rating Index"; }
  void Refresh() override;

  GridView* Grid() const { return grid_; }

 private:
  QLabel* title_;
  GridView* grid_;
};

}  // namespace courtmere::app
