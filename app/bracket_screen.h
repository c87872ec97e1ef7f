// The bracket screens (frmConfBracket, frmNCTBracket, frmACTBracket,
// frmPreBracket): a tournament drawn as a bracket, its rounds side by side
// and each game a box of two lines, the winner in bold, its site beneath,
// and a line from each pair of games to the game their winners meet in.
#pragma once

#include <string>
#include <vector>

#include "app/screen.h"
#include "screens/bracket_view.h"

class QComboBox;
class QLabel;

namespace courtmere::app {

// The picture of a bracket: each section's games where its layout puts
// them, and a connector from each game to the side its winner takes next.
// Its height follows the games; its columns widen with the window.
class BracketCanvas : public QWidget {
  Q_OBJECT

 public:
  explicit BracketCanvas(QWidget* parent = nullptr);

  void SetBracket(BracketView view);
  const BracketView& Bracket() const { return view_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

  // Where a game's two sides are drawn (its site stands below).
  QRect GameBox(int section, int round, int game) const;
  // The line of a connector: from the middle of the right edge of the game
  // it leaves to the side it feeds.
  QPolygon ConnectorPath(int section, const BracketConnector& connector) const;
  // The school drawn at a point; empty off the names.
  std::string SchoolAt(const QPoint& point) const;

 signals:
  // A click on a school's name.
  void SchoolClicked(const std::string& school);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  int HeadingHeight(size_t section) const;
  int SectionHeight(size_t section) const;
  int SectionTop(size_t section) const;
  int Height() const;
  int WidthFor(int box) const;
  int BoxWidth() const;

  BracketView view_;
  std::vector<BracketLayout> layouts_;  // one a section
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
