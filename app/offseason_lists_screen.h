// The offseason's three lists, each a grid of the store's rows: the draft's
// picks ("<year> NBA Draft", News > Check NBA Draft Results and the end of
// Run Draft), the players leaving early (News > Players Leaving Early), and
// the Player Development Report (Management > Offseason Development).
#pragma once

#include "app/screen.h"

class QLabel;

namespace courtmere::app {

class GridView;

class OffseasonListScreen : public Screen {
  Q_OBJECT

 public:
  enum class Kind { kDraft, kLeavers, kDevelopment };

  OffseasonListScreen(Session& session, ScreenHost& host, Kind kind, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  GridView* Grid() const { return grid_; }
  QLabel* Notice() const { return notice_; }

 private:
  void ShowDraft();
  void ShowLeavers();
  void ShowDevelopment();

  Kind kind_;
  GridView* grid_;
  QLabel* notice_;
};

}  // namespace courtmere::app
