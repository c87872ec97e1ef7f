// The data behind every grid of the program: column headings and rows of
// cells, each cell with the text it shows and the value it sorts by, and a
// key per row (a player's Id, a game's number) for the screen that acts on a
// click. A heading the program has a note for (a rating, a statistic)
// explains itself in a tooltip.
#pragma once

#include <QAbstractTableModel>
#include <QColor>
#include <QSortFilterProxyModel>
#include <QStringList>
#include <QTableView>
#include <QVariant>
#include <string>
#include <string_view>
#include <vector>

namespace courtmere::app {

struct GridCell {
  QString text;
  QVariant sortKey;     // the text itself when null
  bool number = false;  // right-aligned
  QColor color;         // the text's colour; the view's own when invalid
  bool bold = false;    // a total, a line that stands out

  static GridCell Text(std::string_view text);
  static GridCell Number(double value, const std::string& text);
  static GridCell Whole(int64_t value);
};

using GridRow = std::vector<GridCell>;

// The colour of the user's school in the tables that rank schools.
inline const QColor kUserBlue{0, 0, 205};

class GridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit GridModel(QStringList headings, QObject* parent = nullptr);

  // Replaces every row; `keys` holds one key per row (or is empty).
  void SetRows(std::vector<GridRow> rows, std::vector<int> keys = {});
  // Renames the columns (their number stays).
  void SetHeadings(QStringList headings);
  int Key(int row) const;
  void SetHeading(int column, const QString& heading);
  const GridCell& Cell(int row, int column) const { return rows_[row][column]; }

  int rowCount(const QModelIndex& parent = QModelIndex()) const override;
  int columnCount(const QModelIndex& parent = QModelIndex()) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  QStringList headings_;
  std::vector<GridRow> rows_;
  std::vector<int> keys_;
};

// A read-only table over a GridModel, sortable by a click on a heading when
// asked. Rows are reported in the model's own numbering.
class GridView : public QTableView {
  Q_OBJECT

 public:
  GridView(GridModel* model, bool sortable, QWidget* parent = nullptr);

  GridModel* Model() const { return model_; }
  // The model row under a view index; -1 for none.
  int ModelRow(const QModelIndex& viewIndex) const;
  // The model row of the current selection; -1 for none.
  int SelectedRow() const;

 signals:
  // A click on a cell, in model numbering.
  void CellClicked(int row, int column);

 private:
  GridModel* model_;
  QSortFilterProxyModel* proxy_;
};

// An unsorted table whose rows are picked one at a time (the staff and
// candidate lists), its first column taking the spare width.
GridView* RowPickGrid(const QStringList& headings, QWidget* parent, const char* name);

}  // namespace courtmere::app
