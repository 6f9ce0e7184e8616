#include "host/desktop/realiser/outline_flat_view.h"

#include <QHeaderView>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <algorithm>
#include <cmath>

namespace zu::desktop {
namespace {

/// A search by typing asks row by row; beyond this a person would wait for it.
constexpr int most_searched_rows = 20'000;

/// Captions that do not fit end in dots.
class caption_line final : public QHeaderView {
 public:
  using QHeaderView::QHeaderView;

 protected:
  void initStyleOptionForIndex(QStyleOptionHeader* option, int section) const override {
    QHeaderView::initStyleOptionForIndex(option, section);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, nullptr, this);
    option->text = option->fontMetrics.elidedText(option->text, Qt::ElideRight,
                                                  sectionSize(section) - 2 * margin);
  }
};

}  // namespace

flat_view::flat_view(QWidget* parent)
    : QAbstractItemView(parent), header_(new caption_line(Qt::Horizontal, this)) {
  header_->setObjectName(QStringLiteral("header"));
  header_->setSectionsClickable(true);
  header_->setHighlightSections(false);
  header_->setStretchLastSection(true);
  header_->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setHorizontalScrollMode(ScrollPerPixel);
  setSelectionBehavior(SelectRows);
  viewport()->setMouseTracking(true);
  viewport()->setAttribute(Qt::WA_Hover);
  connect(header_, &QHeaderView::sectionResized, this, [this] {
    updateGeometries();
    viewport()->update();
  });
  connect(header_, &QHeaderView::sectionCountChanged, this, [this] { updateGeometries(); });
}

void flat_view::setModel(QAbstractItemModel* model) {
  QAbstractItemView::setModel(model);
  header_->setModel(model);
  updateGeometries();
}

void flat_view::set_row_height(int pixels) {
  row_height_ = std::clamp(pixels, 1, highest_row);
  updateGeometries();
  viewport()->update();
}

int flat_view::row_count() const { return model() != nullptr ? model()->rowCount(rootIndex()) : 0; }
int flat_view::rows_that_fit() const { return std::max(viewport()->height() / row_height_, 1); }
int flat_view::first_row() const { return verticalScrollBar()->value(); }
int flat_view::last_row() const {
  const int shown = (viewport()->height() + row_height_ - 1) / row_height_;
  return std::min(first_row() + shown, row_count()) - 1;
}

int flat_view::horizontalOffset() const { return horizontalScrollBar()->value(); }
int flat_view::verticalOffset() const { return first_row() * row_height_; }
bool flat_view::isIndexHidden(const QModelIndex& index) const {
  return header_->isSectionHidden(index.column());
}

QRect flat_view::visualRect(const QModelIndex& index) const {
  if (!index.isValid() || isIndexHidden(index)) return {};
  // Rows far out of sight have places too, at the edge of what a number holds.
  const qint64 y = (qint64(index.row()) - first_row()) * row_height_;
  constexpr qint64 edge = 1 << 30;
  return QRect(header_->sectionViewportPosition(index.column()), int(std::clamp(y, -edge, edge)),
               header_->sectionSize(index.column()), row_height_);
}

QModelIndex flat_view::indexAt(const QPoint& point) const {
  const int column = header_->logicalIndexAt(point.x());
  if (point.y() < 0 || column < 0 || model() == nullptr) return {};
  const int row = first_row() + point.y() / row_height_;
  return row < row_count() ? model()->index(row, column, rootIndex()) : QModelIndex();
}

void flat_view::scrollTo(const QModelIndex& index, ScrollHint hint) {
  if (!index.isValid()) return;
  const int row = index.row(), fit = rows_that_fit(), first = first_row();
  QScrollBar* bar = verticalScrollBar();
  if (hint == PositionAtTop)
    bar->setValue(row);
  else if (hint == PositionAtBottom)
    bar->setValue(row - fit + 1);
  else if (hint == PositionAtCenter)
    bar->setValue(row - fit / 2);
  else if (row < first)
    bar->setValue(row);
  else if (row >= first + fit)
    bar->setValue(row - fit + 1);
  if (isIndexHidden(index)) return;
  const int x = header_->sectionPosition(index.column());
  const int width = header_->sectionSize(index.column());
  QScrollBar* across = horizontalScrollBar();
  if (x < across->value() || width > viewport()->width())
    across->setValue(x);
  else if (x + width > across->value() + viewport()->width())
    across->setValue(x + width - viewport()->width());
}

int flat_view::nearest_shown_column(int from, int step) const {
  for (int at = header_->visualIndex(from) + step; at >= 0 && at < header_->count(); at += step)
    if (!header_->isSectionHidden(header_->logicalIndex(at))) return header_->logicalIndex(at);
  return from;
}

QItemSelectionModel::SelectionFlags flat_view::selectionCommand(const QModelIndex& index,
                                                                const QEvent* event) const {
  const bool is_click = event != nullptr && (event->type() == QEvent::MouseButtonPress ||
                                             event->type() == QEvent::MouseButtonRelease);
  if (is_click && index.isValid() && is_for_all_chosen_ && is_for_all_chosen_(index) &&
      static_cast<const QMouseEvent*>(event)->modifiers() == Qt::NoModifier &&
      selectionModel()->isSelected(index))
    return QItemSelectionModel::NoUpdate;
  return QAbstractItemView::selectionCommand(index, event);
}

QModelIndex flat_view::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
  const int rows = row_count();
  if (rows == 0 || header_->count() == 0) return {};
  int row = currentIndex().isValid() ? currentIndex().row() : 0;
  int column = currentIndex().isValid() ? currentIndex().column() : 0;
  if (header_->isSectionHidden(column)) column = nearest_shown_column(column, 1);
  if (!currentIndex().isValid()) return model()->index(row, column, rootIndex());
  switch (action) {
    case MoveUp:
      --row;
      break;
    case MoveDown:
      ++row;
      break;
    case MovePageUp:
      row -= std::min(rows_that_fit(), row);
      break;
    case MovePageDown:
      row += std::min(rows_that_fit(), rows - 1 - row);
      break;
    case MoveHome:
      row = 0;
      break;
    case MoveEnd:
      row = rows - 1;
      break;
    case MoveLeft:
      column = nearest_shown_column(column, -1);
      break;
    case MoveRight:
      column = nearest_shown_column(column, 1);
      break;
    case MoveNext:
    case MovePrevious: {
      const int step = action == MoveNext ? 1 : -1;
      const int next = nearest_shown_column(column, step);
      if (next != column) {
        column = next;
      } else if (row + step >= 0 && row + step < rows) {
        row += step;
        column = header_->logicalIndex(step > 0 ? 0 : header_->count() - 1);
        if (header_->isSectionHidden(column)) column = nearest_shown_column(column, step);
      }
      break;
    }
  }
  return model()->index(std::clamp(row, 0, rows - 1), column, rootIndex());
}

void flat_view::keyboardSearch(const QString& search) {
  if (row_count() <= most_searched_rows) QAbstractItemView::keyboardSearch(search);
}

void flat_view::setSelection(const QRect& rect, QItemSelectionModel::SelectionFlags flags) {
  if (selectionModel() == nullptr) return;
  const QRect box = rect.normalized();
  auto row_at = [this](int y) { return first_row() + int(std::floor(double(y) / row_height_)); };
  const int first = std::max(row_at(box.top()), 0);
  const int last = std::min(row_at(box.bottom()), row_count() - 1);
  QItemSelection chosen;
  if (first <= last)
    chosen.select(model()->index(first, 0, rootIndex()),
                  model()->index(last, header_->count() - 1, rootIndex()));
  selectionModel()->select(chosen, flags);
}

QRegion flat_view::visualRegionForSelection(const QItemSelection& selection) const {
  QRegion region;
  for (const QItemSelectionRange& range : selection) {
    const int first = std::max(range.top(), first_row());
    const int last = std::min(range.bottom(), last_row());
    if (first <= last)
      region += QRect(0, (first - first_row()) * row_height_, viewport()->width(),
                      (last - first + 1) * row_height_);
  }
  return region;
}

void flat_view::paint_row(QPainter& painter, QStyleOptionViewItem option, int row) {
  const QRect whole(0, (row - first_row()) * row_height_, viewport()->width(), row_height_);
  if (alternatingRowColors() && row % 2 == 1) option.features |= QStyleOptionViewItem::Alternate;
  if (row == hovered_row_) option.state |= QStyle::State_MouseOver;
  const QStyle::State usual = option.state;
  option.rect = whole;
  for (int visual = 0; visual < header_->count(); ++visual) {
    const int column = header_->logicalIndex(visual);
    if (header_->isSectionHidden(column)) continue;
    const QModelIndex index = model()->index(row, column, rootIndex());
    option.rect = visualRect(index);
    if (!option.rect.intersects(viewport()->rect())) continue;
    option.index = index;
    option.state = usual;
    if (selectionModel()->isSelected(index)) option.state |= QStyle::State_Selected;
    if ((model()->flags(index) & Qt::ItemIsEnabled) == 0) option.state &= ~QStyle::State_Enabled;
    if (index == currentIndex() && hasFocus()) option.state |= QStyle::State_HasFocus;
    style()->drawPrimitive(QStyle::PE_PanelItemViewRow, &option, &painter, this);
    itemDelegateForIndex(index)->paint(&painter, option, index);
    if (lines_) {
      painter.setPen(option.palette.color(QPalette::Midlight));
      painter.drawLine(option.rect.topRight(), option.rect.bottomRight());
      painter.drawLine(option.rect.bottomLeft(), option.rect.bottomRight());
    }
  }
}

void flat_view::paintEvent(QPaintEvent* event) {
  if (model() == nullptr) return;
  QPainter painter(viewport());
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  const int top = first_row() + event->rect().top() / row_height_;
  const int bottom = std::min(first_row() + event->rect().bottom() / row_height_, last_row());
  for (int row = top; row <= bottom; ++row) paint_row(painter, option, row);
}

void flat_view::updateGeometries() {
  if (is_laying_out_) return;  // new margins of the viewport lead here again
  is_laying_out_ = true;
  const int height = header_->isHidden() ? 0 : header_->sizeHint().height();
  setViewportMargins(0, height, 0, 0);
  const QRect inside = viewport()->geometry();
  header_->setGeometry(inside.left(), inside.top() - height, inside.width(), height);
  // While it is hidden it does not hear of its new width.
  if (header_->isHidden()) QMetaObject::invokeMethod(header_, "updateGeometries");
  QScrollBar* bar = verticalScrollBar();
  bar->setPageStep(rows_that_fit());
  bar->setRange(0, std::max(row_count() - rows_that_fit(), 0));
  bar->setSingleStep(1);
  QScrollBar* across = horizontalScrollBar();
  across->setPageStep(viewport()->width());
  across->setRange(0, std::max(header_->length() - viewport()->width(), 0));
  across->setSingleStep(20);
  QAbstractItemView::updateGeometries();
  is_laying_out_ = false;
  Q_EMIT rows_in_sight_changed();
}

void flat_view::scrollContentsBy(int dx, int dy) {
  if (dx != 0) header_->setOffset(horizontalScrollBar()->value());
  viewport()->update();
  updateEditorGeometries();
  if (dy != 0) Q_EMIT rows_in_sight_changed();
}

void flat_view::dataChanged(const QModelIndex& from, const QModelIndex& to,
                            const QList<int>& roles) {
  // The base class asks for the place of each changed cell.
  const int first = std::max(from.row(), first_row()), last = std::min(to.row(), last_row());
  if (first <= last)
    QAbstractItemView::dataChanged(from.siblingAtRow(first), to.siblingAtRow(last), roles);
}

void flat_view::rowsInserted(const QModelIndex& parent, int first, int last) {
  QAbstractItemView::rowsInserted(parent, first, last);
  updateGeometries();
  viewport()->update();
}

void flat_view::rowsAboutToBeRemoved(const QModelIndex& parent, int first, int last) {
  QAbstractItemView::rowsAboutToBeRemoved(parent, first, last);
  scheduleDelayedItemsLayout();
}

void flat_view::reset() {
  QAbstractItemView::reset();
  hovered_row_ = -1;
  updateGeometries();
  viewport()->update();
}

void flat_view::focusInEvent(QFocusEvent* event) {
  // The base class would make the first row current, which nobody has chosen.
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

bool flat_view::viewportEvent(QEvent* event) {
  int hovered = hovered_row_;
  if (event->type() == QEvent::HoverMove || event->type() == QEvent::HoverEnter)
    hovered = indexAt(static_cast<QHoverEvent*>(event)->position().toPoint()).row();
  if (event->type() == QEvent::HoverLeave || event->type() == QEvent::Leave) hovered = -1;
  if (hovered != hovered_row_) {
    hovered_row_ = hovered;
    viewport()->update();
  }
  return QAbstractItemView::viewportEvent(event);
}

QSize flat_view::viewportSizeHint() const {
  return QSize(header_->length(), std::min(row_count(), 10) * row_height_);
}

}  // namespace zu::desktop
