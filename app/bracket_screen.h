// The bracket screens (frmConfBracket, frmNCTBracket, frmACTBracket,
// frmPreBracket): a tournament drawn as a bracket, its rounds side by side
// and each game a box of two lines, the winner in bold, its site beneath,
// and a line from each pair of games to the game their winners meet in.
#pragma once

#include <string>

#include "app/screen.h"
#include "screens/bracket_view.h"

class QComboBox;
class QLabel;

namespace courtmere::app {

// The picture of a bracket; its size follows the number of rounds and games.
class BracketCanvas : public QWidget {
  Q_OBJECT

 public:
  explicit BracketCanvas(QWidget* parent = nullptr);

  void SetBracket(BracketView view);
  const BracketView& Bracket() const { return view_; }
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  int SectionHeight(const BracketSection& section) const;

  BracketView view_;
};

class BracketScreen : public Screen {
  Q_OBJECT

 public:
  enum class Kind { kConference, kNct, kAct, kPreseason };

  // `name`: the conference (the user's when empty) or the preseason
  // tournament; unused for the NCT and the ACT.
  BracketScreen(Session& session, ScreenHost& host, Kind kind, std::string name = "",
                QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  BracketCanvas* Canvas() const { return canvas_; }

 private:
  BracketView Read() const;

  Kind kind_;
  std::string name_;
  QComboBox* conferences_ = nullptr;  // the conference bracket's list
  QLabel* title_;
  QLabel* empty_;
  BracketCanvas* canvas_;
};

}  // namespace courtmere::app
