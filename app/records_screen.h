// frmRecords: the record books. `cmbType` picks "Season" or "Career",
// `cmbList` the book: the national one, a school's or a conference's, as the
// menu entry that opened the screen chose.
#pragma once

#include "app/screen.h"

class QComboBox;

namespace courtmere::app {

class GridView;

class RecordsScreen : public Screen {
  Q_OBJECT

 public:
  enum class Books { kNational, kConference, kTeam };

  RecordsScreen(Session& session, ScreenHost& host, Books books, QWidget* parent = nullptr);

  QString Caption() const override;
  QString Key() const override;
  void Refresh() override;

  QComboBox* Type() const { return type_; }
  QComboBox* List() const { return list_; }
  GridView* Grid() const { return grid_; }

 private:
  void ShowBook();

  Books books_;
  QComboBox* type_;
  QComboBox* list_;
  GridView* grid_;
};

}  // namespace courtmere::app
