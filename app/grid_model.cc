#include "app/grid_model.h"

#include <QFont>
#include <QHeaderView>

#include "screens/heading_notes.h"

namespace courtmere::app {

GridCell GridCell::Text(std::string_view text) {
  return {QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())), {}, false, {}};
}

GridCell GridCell::Number(double value, const std::string& text) {
  return {QString::fromStdString(text), value, true, {}};
}

GridCell GridCell::Whole(int64_t value) {
  return {QString::number(value), static_cast<qlonglong>(value), true, {}};
}

GridModel::GridModel(QStringList headings, QObject* parent)
    : QAbstractTableModel(parent), headings_(std::move(headings)) {}

void GridModel::SetHeadings(QStringList headings) {
  if (headings == headings_) return;
  headings_ = std::move(headings);
  emit headerDataChanged(Qt::Horizontal, 0, static_cast<int>(headings_.size()) - 1);
}

void GridModel::SetRows(std::vector<GridRow> rows, std::vector<int> keys) {
  beginResetModel();
  rows_ = std::move(rows);
  keys_ = std::move(keys);
  endResetModel();
}

void GridModel::SetHeading(int column, const QString& heading) {
  if (column < 0 || column >= headings_.size() || headings_[column] == heading) return;
  headings_[column] = heading;
  emit headerDataChanged(Qt::Horizontal, column, column);
}

int GridModel::Key(int row) const {
  return row >= 0 && row < static_cast<int>(keys_.size()) ? keys_[row] : 0;
}

int GridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int GridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(headings_.size());
}

QVariant GridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || index.column() >= static_cast<int>(rows_[index.row()].size())) {
    return {};
  }
  const GridCell& cell = rows_[index.row()][index.column()];
  switch (role) {
    case Qt::DisplayRole:
      return cell.text;
    case Qt::UserRole:
      return cell.sortKey.isNull() ? QVariant(cell.text) : cell.sortKey;
    case Qt::ForegroundRole:
      return cell.color.isValid() ? QVariant(cell.color) : QVariant();
    case Qt::FontRole: {
      if (!cell.bold) return {};
      QFont font;
      font.setBold(true);
      return font;
    }
    case Qt::TextAlignmentRole:
      return QVariant::fromValue(Qt::AlignVCenter | (cell.number ? Qt::AlignRight : Qt::AlignLeft));
    default:
      return {};
  }
}

QVariant GridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || section >= headings_.size()) return {};
  if (role == Qt::DisplayRole) return headings_[section];
  if (role == Qt::ToolTipRole) {
    const std::string_view note = HeadingNote(headings_[section].toStdString());
    return note.empty() ? QVariant() : QVariant(QString::fromUtf8(note.data(), note.size()));
  }
  return {};
}

GridView::GridView(GridModel* model, bool sortable, QWidget* parent)
    : QTableView(parent), model_(model), proxy_(new QSortFilterProxyModel(this)) {
  proxy_->setSourceModel(model);
  proxy_->setSortRole(Qt::UserRole);
  proxy_->setSortCaseSensitivity(Qt::CaseInsensitive);
  setModel(proxy_);
  setSortingEnabled(sortable);
  if (sortable) sortByColumn(-1, Qt::AscendingOrder);  // the model's own order until a click
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::SingleSelection);
  setAlternatingRowColors(true);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setHighlightSections(false);
  connect(this, &QTableView::clicked, this, [this](const QModelIndex& index) {
    const int row = ModelRow(index);
    if (row >= 0) emit CellClicked(row, index.column());
  });
}

int GridView::ModelRow(const QModelIndex& viewIndex) const {
  if (!viewIndex.isValid()) return -1;
  return proxy_->mapToSource(viewIndex).row();
}

int GridView::SelectedRow() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  return rows.isEmpty() ? -1 : ModelRow(rows.first());
}

GridView* RowPickGrid(const QStringList& headings, QWidget* parent, const char* name) {
  auto* grid = new GridView(new GridModel(headings, parent), false, parent);
  grid->setObjectName(name);
  grid->setSelectionBehavior(QAbstractItemView::SelectRows);
  grid->setSelectionMode(QAbstractItemView::SingleSelection);
  grid->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  grid->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  return grid;
}

}  // namespace courtmere::app
