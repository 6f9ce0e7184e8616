#pragma once
// A flat list of any length: it knows no row but those in sight, so that ten million rows open as
// ten do. All rows have one height; the vertical scroll bar counts rows.

#include <QAbstractItemView>
#include <functional>

class QHeaderView;

namespace zu::desktop {

class flat_view final : public QAbstractItemView {
  Q_OBJECT
 public:
  /// With the most items of a model the rows' places are still numbers.
  static constexpr int highest_row = 70;

  explicit flat_view(QWidget* parent);

  QHeaderView* header() const { return header_; }
  void set_row_height(int pixels);
  int row_height() const { return row_height_; }
  /// Cells on which a click means all chosen rows: on a chosen one it leaves them chosen.
  void set_cells_for_all_chosen(std::function<bool(const QModelIndex&)> is_one) {
    is_for_all_chosen_ = std::move(is_one);
  }
  void set_lines(bool shown) { lines_ = shown; }
  /// First and last row of which a part is in sight; the last is -1 if there are no rows.
  int first_row() const;
  int last_row() const;

  void setModel(QAbstractItemModel* model) override;
  QRect visualRect(const QModelIndex& index) const override;
  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;
  QModelIndex indexAt(const QPoint& point) const override;
  void keyboardSearch(const QString& search) override;
  void reset() override;

 Q_SIGNALS:
  void rows_in_sight_changed();

 protected:
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;
  QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
  int horizontalOffset() const override;
  int verticalOffset() const override;
  bool isIndexHidden(const QModelIndex& index) const override;
  void setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) override;
  QRegion visualRegionForSelection(const QItemSelection& selection) const override;
  void paintEvent(QPaintEvent* event) override;
  void updateGeometries() override;
  void scrollContentsBy(int dx, int dy) override;
  void dataChanged(const QModelIndex& from, const QModelIndex& to,
                   const QList<int>& roles) override;
  void rowsInserted(const QModelIndex& parent, int first, int last) override;
  void rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) override;
  bool viewportEvent(QEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  QSize viewportSizeHint() const override;

 private:
  int row_count() const;
  int rows_that_fit() const;
  int nearest_shown_column(int from, int step) const;
  void paint_row(QPainter& painter, QStyleOptionViewItem option, int row);

  QHeaderView* header_;
  std::function<bool(const QModelIndex&)> is_for_all_chosen_;
  int row_height_ = 24;
  bool lines_ = false;
  int hovered_row_ = -1;
  bool is_laying_out_ = false;
};

}  // namespace zu::desktop
