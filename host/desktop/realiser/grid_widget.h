#pragma once
// A table of any number of rows, painted cell by cell: only what is in sight is asked for.

#include <QAbstractScrollArea>
#include <QPointer>

#include "host/desktop/realiser/grid_places.h"
#include "host/desktop/realiser/realised.h"

namespace zu::desktop {

class grid_widget final : public realised<grid_impl, QAbstractScrollArea> {
  Q_OBJECT
 public:
  grid_widget(handle shown, QWidget* parent);

  const grid_places& places() const { return places_; }
  /// The current cell; empty for none.
  std::optional<grid_place> current() const;
  void scroll_to_row(std::uint64_t row);  ///< counted with the fixed ones
  bool edit(grid_place at);               ///< false for a cell that cannot be edited
  /// Cells that copying takes, tabs between them, a line for each row. With no part chosen by a
  /// person the rows with marks if the current one has, otherwise the current cell.
  QString copied_text() const;
  void copy();
  QSize sizeHint() const override;

 protected:
  void heard(notice what) override;
  void changeEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void scrollContentsBy(int dx, int dy) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  struct cell_range {
    grid_place low, high;  // both inside
  };
  enum class mouse_work { none, header, fixed, cells, edge };

  void read_columns();
  void keep_width(std::uint32_t column) const;
  int fitting_row_height() const;
  int fitting_width(std::uint32_t column) const;
  void read_rows();
  void show_bars();
  void row_bar_acted(int action);
  int bar_value_of(std::uint64_t top) const;
  void scroll_rows(std::int64_t rows);
  std::optional<cell_range> chosen() const;
  bool is_chosen(grid_place at) const;

  void paint_cell(QPainter& painter, grid_place at);
  void paint_header_cell(QPainter& painter, grid_place at, const shown_cell& cell, QRect rect);
  void paint_data_cell(QPainter& painter, grid_place at, const shown_cell& cell, QRect rect);
  void paint_inside(QPainter& painter, const shown_cell& cell, QRect rect, QColor ink);

  void move_to(grid_place at, bool extend);
  void move_by(std::int64_t columns, std::int64_t rows, bool extend);
  bool move_by_key(QKeyEvent* event);
  void press_space(grid_place at);
  void release_in_header(grid_place at, bool shift);
  void release_in_fixed(grid_place at, bool shift);
  void release_in_cells(grid_place at, bool shift);
  void place_editor();
  void finish_editing(bool keep);
  void input_happened();

  grid_places places_;
  std::optional<grid_place> local_current_;  // while the grid itself knows none
  std::optional<grid_place> anchor_;         // the other corner of the chosen part
  QPointer<QWidget> editor_;
  grid_place edited_;
  mouse_work work_ = mouse_work::none;
  grid_place pressed_;
  std::uint32_t resized_ = 0;
  int wheel_rest_ = 0;
  bool is_showing_bars_ = false;
};

}  // namespace zu::desktop
