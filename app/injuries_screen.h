// frmLeaders as the injury report: the hurt players of the nation or of a
// conference, with the injury and the weeks out. A click on a player opens
// his card.
#pragma once

#include "app/scope.h"
#include "app/screen.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class InjuriesScreen : public Screen {
  Q_OBJECT

 public:
  InjuriesScreen(Session& session, ScreenHost& host, Scope scope, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override { return ScopedKey("frmInjuries", scope_); }
  void Refresh() override;

  GridView* Grid() const { return grid_; }

 private:
  Scope scope_;
  QComboBox* conferences_ = nullptr;  // null for the nation
  GridView* grid_;
};

}  // namespace courtmere::app
