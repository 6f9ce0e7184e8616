// Mouse and keys of a table.

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <algorithm>
#include <limits>

#include "host/desktop/realiser/grid_widget.h"

namespace zu::desktop {
namespace {

bool has_shift(const QInputEvent* event) { return event->modifiers().testFlag(Qt::ShiftModifier); }
std::uint64_t moved(std::uint64_t from, std::int64_t by, std::uint64_t least, std::uint64_t most) {
  const std::uint64_t far = std::uint64_t(std::abs(by));
  if (by < 0) return from - std::min(far, from - std::min(from, least));
  return from + std::min(far, most - std::min(from, most));
}

}  // namespace

void grid_widget::move_to(grid_place at, bool extend) {
  if (at.column >= places_.widths.size() || at.row >= places_.rows) return;
  const std::optional<grid_place> before = current();
  if (!extend)
    anchor_.reset();
  else if (!anchor_)
    anchor_ = before.value_or(at);
  local_current_ = at;
  places_.bring_into_sight(at);
  show_bars();
  if (before == at) return;
  call<&grid_impl::move_to>(element_, at.column, at.row);
  viewport()->update();
  input_happened();
}

void grid_widget::move_by(std::int64_t columns, std::int64_t rows, bool extend) {
  const auto first_column = places_.fixed_columns,
             all_columns = std::uint32_t(places_.widths.size());
  if (all_columns <= first_column || places_.rows <= places_.fixed_rows) return;
  const std::optional<grid_place> from = current();
  grid_place to{first_column, places_.fixed_rows};
  if (from) {
    to.column = std::uint32_t(moved(from->column, columns, first_column, all_columns - 1));
    to.row = moved(from->row, rows, places_.fixed_rows, places_.rows - 1);
  }
  move_to(to, extend);
}

void grid_widget::press_space(grid_place at) {
  if (!click_cell(element_, at, false)) call<&grid_impl::toggle>(element_, at.column, at.row);
  viewport()->update();
  input_happened();
}

bool grid_widget::move_by_key(QKeyEvent* event) {
  constexpr std::int64_t far = std::numeric_limits<std::int64_t>::max();
  const auto page = std::int64_t(places_.rows_that_fit());
  const bool control = event->modifiers().testFlag(Qt::ControlModifier);
  const bool shift = has_shift(event);
  switch (event->key()) {
    case Qt::Key_Left:
      move_by(control ? -far : -1, 0, shift);
      return true;
    case Qt::Key_Right:
      move_by(control ? far : 1, 0, shift);
      return true;
    case Qt::Key_Up:
      move_by(0, control ? -far : -1, shift);
      return true;
    case Qt::Key_Down:
      move_by(0, control ? far : 1, shift);
      return true;
    case Qt::Key_PageUp:
      move_by(0, -page, shift);
      return true;
    case Qt::Key_PageDown:
      move_by(0, page, shift);
      return true;
    case Qt::Key_Home:
      move_by(-far, control ? -far : 0, shift);
      return true;
    case Qt::Key_End:
      move_by(far, control ? far : 0, shift);
      return true;
    default:
      return false;
  }
}

void grid_widget::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Copy)) return copy();
  if (move_by_key(event)) return;
  const std::optional<grid_place> at = current();
  if (!at) return realised::keyPressEvent(event);
  switch (event->key()) {
    case Qt::Key_Space:
      press_space(*at);
      return;
    case Qt::Key_F2:
      edit(*at);
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (edit(*at)) return;
      break;
    case Qt::Key_Escape:
      if (!anchor_) break;
      anchor_.reset();
      viewport()->update();
      return;
    default:
      break;
  }
  const bool is_text = !event->text().isEmpty() && event->text().at(0).isPrint() &&
                       !event->modifiers().testFlag(Qt::ControlModifier) &&
                       !event->modifiers().testFlag(Qt::AltModifier);
  if (is_text && edit(*at)) {
    QApplication::sendEvent(editor_, event);  // it takes the place of what is marked in the editor
    return;
  }
  realised::keyPressEvent(event);
}

void grid_widget::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
  finish_editing(true);
  const QPoint point = event->position().toPoint();
  work_ = mouse_work::none;
  if (const auto edge = places_.edge_at(point); edge && event->button() == Qt::LeftButton) {
    work_ = mouse_work::edge;
    resized_ = *edge;
    return;
  }
  const std::optional<grid_place> at = places_.place_at(point);
  if (!at) return;
  pressed_ = *at;
  const bool in_data = at->row >= places_.fixed_rows && at->column >= places_.fixed_columns;
  if (event->button() == Qt::RightButton) {
    // The menu is about the cell under it, or about the chosen part if the cell is in it.
    if (in_data && !is_chosen(*at)) move_to(*at, false);
    return;
  }
  work_ = in_data                        ? mouse_work::cells
          : at->row < places_.fixed_rows ? mouse_work::header
                                         : mouse_work::fixed;
  if (in_data) move_to(*at, has_shift(event));
}

void grid_widget::mouseMoveEvent(QMouseEvent* event) {
  const QPoint point = event->position().toPoint();
  if (work_ == mouse_work::edge && event->buttons().testFlag(Qt::LeftButton)) {
    places_.widths[resized_] = std::max(point.x() - places_.x_of(resized_), grid_places::narrowest);
    show_bars();
    return;
  }
  if (work_ == mouse_work::cells && event->buttons().testFlag(Qt::LeftButton)) {
    // Past the edge the nearest cell is meant, and one more comes into sight with each move.
    const QPoint inside(
        std::clamp(point.x(), places_.fixed_width(), std::max(viewport()->width() - 1, 0)),
        std::clamp(point.y(), places_.fixed_height(), std::max(viewport()->height() - 1, 0)));
    if (point.y() > inside.y()) scroll_rows(1);
    if (point.y() < inside.y()) scroll_rows(-1);
    const std::optional<grid_place> at = places_.place_at(inside);
    if (at && *at != current()) move_to(*at, true);
    return;
  }
  viewport()->setCursor(places_.edge_at(point) ? Qt::SplitHCursor : Qt::ArrowCursor);
}

void grid_widget::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const mouse_work work = std::exchange(work_, mouse_work::none);
  if (work == mouse_work::edge) {
    keep_width(resized_);
    return;
  }
  const std::optional<grid_place> at = places_.place_at(event->position().toPoint());
  if (!at || *at != pressed_) return;
  if (work == mouse_work::header) release_in_header(*at, has_shift(event));
  if (work == mouse_work::fixed) release_in_fixed(*at, has_shift(event));
  if (work == mouse_work::cells) release_in_cells(*at, has_shift(event));
}

void grid_widget::release_in_header(grid_place at, bool shift) {
  const bool taken = click_cell(element_, at, shift) ||
                     call<&grid_impl::header_clicked>(element_, at.column, shift);
  viewport()->update();
  if (taken) input_happened();
}

void grid_widget::release_in_fixed(grid_place at, bool shift) {
  const bool taken = click_cell(element_, at, shift) ||
                     call<&grid_impl::fixed_clicked>(element_, at.column, at.row, shift);
  viewport()->update();
  if (taken) input_happened();
}

void grid_widget::release_in_cells(grid_place at, bool shift) {
  if (!click_cell(element_, at, shift)) return;
  viewport()->update();
  input_happened();
}

void grid_widget::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  const QPoint point = event->position().toPoint();
  if (const auto edge = places_.edge_at(point)) {
    places_.widths[*edge] = fitting_width(*edge);
    show_bars();
    return;
  }
  const std::optional<grid_place> at = places_.place_at(point);
  if (!at) return;
  const bool in_data = at->row >= places_.fixed_rows && at->column >= places_.fixed_columns;
  if (in_data && edit(*at)) return;
  mousePressEvent(event);  // the second of two quick clicks
}

void grid_widget::wheelEvent(QWheelEvent* event) {
  const QPoint turned = event->angleDelta();
  if (turned.x() != 0 || event->modifiers().testFlag(Qt::ShiftModifier)) {
    QApplication::sendEvent(horizontalScrollBar(), event);
    return;
  }
  constexpr int notch = 120;
  wheel_rest_ += turned.y() * QApplication::wheelScrollLines();
  scroll_rows(-(wheel_rest_ / notch));
  wheel_rest_ %= notch;
  event->accept();
}

void grid_widget::focusInEvent(QFocusEvent* event) {
  realised::focusInEvent(event);
  viewport()->update();
}
void grid_widget::focusOutEvent(QFocusEvent* event) {
  realised::focusOutEvent(event);
  viewport()->update();
}

}  // namespace zu::desktop
