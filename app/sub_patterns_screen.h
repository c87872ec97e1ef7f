// frmSub, the substitution patterns outside a game: the user's players with
// their season's figures per 40 minutes and how soon the computer rests
// each (Less, Normal, More). Submit asks, then saves every row; the players
// take their patterns at their next game. The live game window's fourth tab
// shows the same table.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/screen.h"
#include "screens/live_sub_patterns.h"

class QTableWidget;

namespace courtmere::app {

// A table of the rows, the pattern of each in a combo box whose change
// calls `changed` with the row's index and the new pattern.
QTableWidget* MakeSubPatternTable(QWidget* parent);
void ShowSubPatternRows(QTableWidget* table, const std::vector<SubPatternRow>& rows,
                        const std::function<void(int row, const std::string& pattern)>& changed);

class SubPatternsScreen : public Screen {
  Q_OBJECT

 public:
  SubPatternsScreen(Session& session, ScreenHost& host, QWidget* parent = nullptr);

  QString Caption() const override { return "Substitution Patterns"; }
  void Refresh() override;

  QTableWidget* Table() const { return table_; }
  void Submit();

 private:
  QTableWidget* table_;
  std::vector<SubPatternRow> rows_;
};

}  // namespace courtmere::app
