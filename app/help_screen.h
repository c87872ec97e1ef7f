// The help contents (Help > Contents and the intro's Help label).
#pragma once

#include "app/screen.h"

namespace courtmere::app {

class HelpScreen : public Screen {
  Q_OBJECT

 public:
  HelpScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);
  QString Caption() const override { return "Courtmere Help"; }
};

}  // namespace courtmere::app
