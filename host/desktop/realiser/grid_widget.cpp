#include "host/desktop/realiser/grid_widget.h"

#include <QApplication>
#include <QClipboard>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "host/desktop/realiser/outline_editors.h"
#include "host/desktop/realiser/realiser.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

/// A scroll bar counts to here; of more rows a step of it is several.
constexpr std::uint64_t most_bar_steps = 1u << 30;
/// Beyond this many cells a copy would fill the memory of who takes it.
constexpr std::uint64_t most_copied_cells = 1'000'000;
/// Rows with marks are looked for among this many.
constexpr std::uint64_t most_searched_rows = 100'000;

QString width_name(handle grid, std::uint32_t column) {
  const QString id = text_by<&grid_impl::column_id>(grid, column);
  return id.isEmpty() ? QString() : QStringLiteral("column/") + id;
}

/// As tables on a clipboard are written: what would end a cell stands in quotes.
QString quoted(QString text) {
  const bool needs_quotes = text.contains(QLatin1Char('\t')) || text.contains(QLatin1Char('\n')) ||
                            text.contains(QLatin1Char('\r')) || text.startsWith(QLatin1Char('"'));
  if (!needs_quotes) return text;
  text.replace(QLatin1Char('"'), QStringLiteral("\"\""));
  return QLatin1Char('"') + text + QLatin1Char('"');
}

}  // namespace

grid_widget::grid_widget(handle shown, QWidget* parent) : realised(shown, parent) {
  setObjectName(QStringLiteral("grid"));
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setObjectName(QStringLiteral("grid_cells"));
  viewport()->setMouseTracking(true);
  viewport()->setBackgroundRole(QPalette::Base);
  connect(verticalScrollBar(), &QScrollBar::actionTriggered, this, &grid_widget::row_bar_acted);
  begin();
}

void grid_widget::heard(notice what) {
  if (what == notice::value || what == notice::language) {
    finish_editing(false);
    read_columns();
  }
  if (what == notice::list) {
    finish_editing(false);
    anchor_.reset();
    if (places_.widths.size() != call<&grid_impl::column_count>(element_)) read_columns();
  }
  setToolTip(text_by<&grid_impl::hint>(element_));
  setEnabled(call<&grid_impl::enabled>(element_));
  read_rows();
  viewport()->update();
}

void grid_widget::read_columns() {
  places_.fixed_columns = call<&grid_impl::fixed_columns>(element_);
  places_.fixed_rows = call<&grid_impl::fixed_rows>(element_);
  places_.rows = call<&grid_impl::row_count>(element_);
  places_.row_height = fitting_row_height();
  places_.widths.assign(call<&grid_impl::column_count>(element_), 0);
  for (std::uint32_t column = 0; column < places_.widths.size(); ++column) {
    const QString name = width_name(element_, column);
    int width = name.isEmpty() ? 0 : choice(name).toInt();
    if (width == 0) width = characters(this, call<&grid_impl::column_width>(element_, column));
    places_.widths[column] = width > 0 ? width : fitting_width(column);
  }
}

void grid_widget::keep_width(std::uint32_t column) const {
  const QString name = width_name(element_, column);
  if (!name.isEmpty()) keep_choice(name, QString::number(places_.widths[column]));
}

/// By the text, or by the pictures of which the first cell shows one.
int grid_widget::fitting_row_height() const {
  constexpr int text_margin = 6, picture_margin = 4, highest_picture = 64;
  const int text = fontMetrics().height() + text_margin;
  if (places_.rows <= places_.fixed_rows) return text;
  const shown_cell first = read_cell(element_, {places_.fixed_columns, places_.fixed_rows});
  if (first.picture.isNull()) return text;
  return std::max(text, std::min(first.picture.height(), highest_picture) + picture_margin);
}

int grid_widget::fitting_width(std::uint32_t column) const {
  int width = grid_places::narrowest;
  const auto look = [&](std::uint64_t row) {
    const shown_cell cell = read_cell(element_, {column, row});
    width = std::max(width, fontMetrics().horizontalAdvance(cell.text) + 12);
    width = std::max(width, cell.picture.width() + 6);
  };
  for (std::uint64_t row = 0; row < std::min(places_.fixed_rows, places_.rows); ++row) look(row);
  const auto [first, end] = places_.rows_in_sight();
  for (std::uint64_t row = first; row < end; ++row) look(row);
  return width;
}

void grid_widget::read_rows() {
  places_.rows = call<&grid_impl::row_count>(element_);
  for (std::optional<grid_place>* kept : {&local_current_, &anchor_})
    if (*kept && ((*kept)->row >= places_.rows || (*kept)->column >= places_.widths.size()))
      kept->reset();
  show_bars();
}

int grid_widget::bar_value_of(std::uint64_t top) const {
  const std::uint64_t last = places_.last_top();
  if (last <= most_bar_steps) return int(top);
  return int(std::llround(double(top) / double(last) * double(most_bar_steps)));
}

void grid_widget::show_bars() {
  const QScopedValueRollback<bool> showing(is_showing_bars_, true);
  places_.size = viewport()->size();
  places_.top = std::min(places_.top, places_.last_top());
  places_.left = std::clamp(places_.left, 0, places_.last_left());
  QScrollBar* rows = verticalScrollBar();
  rows->setPageStep(int(std::min<std::uint64_t>(places_.rows_that_fit(), 10'000)));
  rows->setRange(0, int(std::min(places_.last_top(), most_bar_steps)));
  rows->setValue(bar_value_of(places_.top));
  QScrollBar* columns = horizontalScrollBar();
  columns->setPageStep(std::max(viewport()->width() - places_.fixed_width(), 1));
  columns->setSingleStep(20);
  columns->setRange(0, places_.last_left());
  columns->setValue(places_.left);
  place_editor();
  viewport()->update();
}

void grid_widget::row_bar_acted(int action) {
  QScrollBar* bar = verticalScrollBar();
  const auto page = std::int64_t(places_.rows_that_fit());
  if (action == QScrollBar::SliderSingleStepAdd) scroll_rows(1);
  if (action == QScrollBar::SliderSingleStepSub) scroll_rows(-1);
  if (action == QScrollBar::SliderPageStepAdd) scroll_rows(page);
  if (action == QScrollBar::SliderPageStepSub) scroll_rows(-page);
  if (action != QScrollBar::SliderMove) bar->setSliderPosition(bar_value_of(places_.top));
}

void grid_widget::scroll_rows(std::int64_t rows) {
  const std::uint64_t far = std::uint64_t(std::abs(rows));
  if (rows < 0)
    places_.top -= std::min(far, places_.top);
  else
    places_.top += std::min(far, places_.last_top() - std::min(places_.top, places_.last_top()));
  show_bars();
}

void grid_widget::scroll_to_row(std::uint64_t row) {
  places_.bring_into_sight({places_.fixed_columns, row});
  show_bars();
}

void grid_widget::scrollContentsBy(int, int) {
  if (is_showing_bars_) return;  // the bars follow the places, not the other way round
  const int value = verticalScrollBar()->value();
  // Of many rows a place of the bar stands for several: only a person's move of it counts.
  if (value != bar_value_of(places_.top)) {
    const std::uint64_t last = places_.last_top();
    places_.top = last <= most_bar_steps
                      ? std::uint64_t(value)
                      : std::uint64_t(double(value) / double(most_bar_steps) * double(last));
    places_.top = std::min(places_.top, last);
  }
  places_.left = horizontalScrollBar()->value();
  place_editor();
  viewport()->update();
}

void grid_widget::resizeEvent(QResizeEvent* event) {
  realised::resizeEvent(event);
  show_bars();
}

void grid_widget::changeEvent(QEvent* event) {
  realised::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
    heard(notice::value);
}

QSize grid_widget::sizeHint() const {
  const int width = places_.fixed_width() + places_.scrolled_width();
  return QSize(std::clamp(width, characters(this, 30), characters(this, 100)) + 24,
               places_.fixed_height() + 10 * places_.row_height);
}

std::optional<grid_place> grid_widget::current() const {
  grid_place at;
  if (call<&grid_impl::position>(element_, &at.column, &at.row))
    return at.column < places_.widths.size() && at.row < places_.rows ? std::optional(at)
                                                                      : std::nullopt;
  return local_current_;
}

std::optional<grid_widget::cell_range> grid_widget::chosen() const {
  const std::optional<grid_place> now = current();
  if (!now) return {};
  const grid_place other = anchor_.value_or(*now);
  return cell_range{{std::min(now->column, other.column), std::min(now->row, other.row)},
                    {std::max(now->column, other.column), std::max(now->row, other.row)}};
}

bool grid_widget::is_chosen(grid_place at) const {
  const std::optional<cell_range> range = anchor_ ? chosen() : std::nullopt;
  return range && at.column >= range->low.column && at.column <= range->high.column &&
         at.row >= range->low.row && at.row <= range->high.row;
}

// --- Editing

bool grid_widget::edit(grid_place at) {
  finish_editing(true);
  if (!isEnabled()) return false;
  QWidget* editor = make_editor(element_, at, viewport());
  if (editor == nullptr) return false;
  places_.bring_into_sight(at);
  show_bars();
  editor_ = editor;
  edited_ = at;
  show_in_editor(editor, edited_value(element_, at));
  editor->installEventFilter(this);
  place_editor();
  editor->show();
  editor->setFocus();
  return true;
}

void grid_widget::place_editor() {
  if (!editor_) return;
  const QRect rect = places_.rect(edited_);
  const bool in_sight = !rect.isEmpty() && (edited_.column < places_.fixed_columns ||
                                            rect.right() > places_.fixed_width());
  editor_->setGeometry(in_sight ? rect : QRect(-1000, -1000, 10, 10));
}

void grid_widget::finish_editing(bool keep) {
  if (!editor_) return;
  QWidget* editor = editor_;
  editor_ = nullptr;
  editor->removeEventFilter(this);
  const QVariant value = value_of_editor(editor);
  const bool changed = value != starting_value(editor);
  const bool had_focus = editor->hasFocus() || editor->isAncestorOf(QApplication::focusWidget());
  editor->hide();
  editor->deleteLater();
  if (had_focus) setFocus();
  const bool taken = keep && changed && set_cell(element_, edited_, value);
  viewport()->update();
  if (taken) input_happened();
}

bool grid_widget::eventFilter(QObject* watched, QEvent* event) {
  if (watched != editor_) return realised::eventFilter(watched, event);
  if (event->type() == QEvent::FocusOut &&
      static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
    finish_editing(true);
  if (event->type() != QEvent::KeyPress) return false;
  switch (static_cast<QKeyEvent*>(event)->key()) {
    case Qt::Key_Escape:
      finish_editing(false);
      return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      finish_editing(true);
      move_by(0, 1, false);
      return true;
    case Qt::Key_Tab:
      finish_editing(true);
      move_by(1, 0, false);
      return true;
    case Qt::Key_Backtab:
      finish_editing(true);
      move_by(-1, 0, false);
      return true;
    default:
      return false;
  }
}

// --- Copying

QString grid_widget::copied_text() const {
  const std::optional<cell_range> range = chosen();
  if (!range) return {};
  QString text;
  const auto add_row = [&](std::uint64_t row, std::uint32_t first, std::uint32_t last) {
    if (!text.isEmpty()) text += QLatin1Char('\n');
    for (std::uint32_t column = first; column <= last; ++column) {
      if (column > first) text += QLatin1Char('\t');
      text += quoted(text_by<&grid_impl::cell_text>(element_, column, row));
    }
  };
  const bool is_part = range->low != range->high;
  const bool takes_marked =
      !is_part && places_.rows <= most_searched_rows &&
      call<&grid_impl::is_marked>(element_, range->low.column, range->low.row);
  if (!takes_marked) {
    for (std::uint64_t row = range->low.row; row <= range->high.row; ++row)
      add_row(row, range->low.column, range->high.column);
    return text;
  }
  for (std::uint64_t row = places_.fixed_rows; row < places_.rows; ++row)
    if (call<&grid_impl::is_marked>(element_, places_.fixed_columns, row))
      add_row(row, places_.fixed_columns, std::uint32_t(places_.widths.size()) - 1);
  return text;
}

void grid_widget::copy() {
  const std::optional<cell_range> range = chosen();
  if (!range) return;
  const std::uint64_t cells =
      (range->high.row - range->low.row + 1) * (range->high.column - range->low.column + 1);
  if (cells > most_copied_cells) {
    QToolTip::showText(mapToGlobal(viewport()->rect().center()),
                       words("These are more than 1,000,000 cells: too many to copy.",
                             "Здесь больше 1 000 000 ячеек: столько скопировать нельзя."),
                       this);
    return;
  }
  QApplication::clipboard()->setText(copied_text());
}

bool grid_widget::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    auto* help = static_cast<QHelpEvent*>(event);
    QString text;
    if (const std::optional<grid_place> at = places_.place_at(help->pos())) {
      text = hint_of_cell(element_, *at);
      if (text.isEmpty()) {
        const QString said = text_by<&grid_impl::cell_text>(element_, at->column, at->row);
        if (fontMetrics().horizontalAdvance(said) + 10 > places_.widths[at->column]) text = said;
      }
    }
    QToolTip::showText(help->globalPos(), text.isEmpty() ? toolTip() : text, viewport());
    return true;
  }
  return realised::viewportEvent(event);
}

void grid_widget::input_happened() { input_reached_later(name_of(this)); }

}  // namespace zu::desktop
