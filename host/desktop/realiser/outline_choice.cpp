#include "host/desktop/realiser/outline_choice.h"

#include <QAbstractItemView>
#include <QItemSelectionModel>
#include <QScopedValueRollback>
#include <QTreeView>
#include <algorithm>

#include "host/desktop/realiser/outline_flat_view.h"
#include "host/desktop/realiser/outline_model.h"

namespace zu::desktop {
namespace {

constexpr int longest_compared_whole = 10'000;

}  // namespace

outline_choice::outline_choice(outline shown, outline_model* model, QAbstractItemView* view)
    : QObject(view), shown_(shown), model_(model), view_(view) {
  QItemSelectionModel* chosen = view->selectionModel();
  connect(chosen, &QItemSelectionModel::currentChanged, this, &outline_choice::current_changed);
  connect(chosen, &QItemSelectionModel::selectionChanged, this, &outline_choice::selection_changed);
  // A closed part of a tree has not been compared.
  if (auto* tree = qobject_cast<QTreeView*>(view))
    connect(tree, &QTreeView::expanded, this, [this] { show_marks(true); });
}

bool outline_choice::is_long() const {
  return model_->is_flat() && model_->rowCount() > longest_compared_whole;
}

std::pair<int, int> outline_choice::rows_in_sight() const {
  if (auto* list = qobject_cast<flat_view*>(view_)) return {list->first_row(), list->last_row()};
  return {0, model_->rowCount() - 1};
}

void outline_choice::show() {
  if (is_telling_) {
    is_asked_again_ = true;
    return;
  }
  knows_all_marks_ = false;
  show_current(tracks_current_);
  show_marks(true);
}

void outline_choice::show_marks_in_sight() {
  if (!is_showing_ && !is_telling_ && is_long() && !knows_all_marks_) show_marks(false);
}

void outline_choice::show_current(bool also_none) {
  const QModelIndex wanted = model_->current(), shown = view_->currentIndex();
  const bool same = wanted.isValid() == shown.isValid() && wanted.row() == shown.row() &&
                    wanted.parent() == shown.parent();
  if (wanted.isValid()) tracks_current_ = true;
  if (same || (!wanted.isValid() && !also_none)) return;
  QScopedValueRollback<bool> showing(is_showing_, true);
  if (!wanted.isValid()) {
    view_->selectionModel()->clearCurrentIndex();
    return;
  }
  const QModelIndex at = wanted.siblingAtColumn(std::max(shown.column(), 0));
  view_->selectionModel()->setCurrentIndex(at, QItemSelectionModel::NoUpdate);
  view_->scrollTo(at);
}

void outline_choice::show_marks(bool whole) {
  if (view_->selectionMode() == QAbstractItemView::NoSelection) return;
  QScopedValueRollback<bool> showing(is_showing_, true);
  if (whole && view_->selectionMode() == QAbstractItemView::SingleSelection) {
    // One at most: an item out of sight must not stay beside the one that is marked now.
    const QModelIndexList before = view_->selectionModel()->selectedRows();
    for (const QModelIndex& index : before)
      if (!model_->is_marked(index))
        view_->selectionModel()->select(index,
                                        QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
  }
  const auto [first, last] =
      is_long() ? rows_in_sight() : std::pair<int, int>{0, model_->rowCount() - 1};
  show_marks_below({}, first, last);
}

void outline_choice::show_marks_below(const QModelIndex& parent, int first, int last) {
  QItemSelectionModel* chosen = view_->selectionModel();
  auto* tree = qobject_cast<QTreeView*>(view_);
  QItemSelection add, drop;
  for (int row = first; row <= last; ++row) {
    const QModelIndex index = model_->index(row, 0, parent);
    const bool marked = model_->is_marked(index);
    if (marked != chosen->isSelected(index)) {
      QItemSelection& changed = marked ? add : drop;
      if (!changed.isEmpty() && changed.last().bottom() == row - 1)
        changed.last() = QItemSelectionRange(changed.last().topLeft(), index);
      else
        changed.append(QItemSelectionRange(index));
    }
    if (tree != nullptr && tree->isExpanded(index))
      show_marks_below(index, 0, model_->rowCount(index) - 1);
  }
  const auto rows = QItemSelectionModel::Rows;
  if (!drop.isEmpty()) chosen->select(drop, QItemSelectionModel::Deselect | rows);
  if (!add.isEmpty()) chosen->select(add, QItemSelectionModel::Select | rows);
}

void outline_choice::current_changed(const QModelIndex& now) {
  if (is_showing_ || !now.isValid()) return;
  const QModelIndex before = model_->current();
  if (before.isValid() && before.row() == now.row() && before.parent() == now.parent()) return;
  {
    QScopedValueRollback<bool> telling(is_telling_, true);
    model_->with_item(
        now, [this](outline_item item) { call<&outline_impl::set_current>(shown_, item); });
  }
  tracks_current_ = model_->current().isValid();
  if (std::exchange(is_asked_again_, false)) show_marks(true);
  show_current(false);  // the outline may have refused
  Q_EMIT input_happened();
}

void outline_choice::mark_rows(const QItemSelection& rows, bool marked) {
  for (const QItemSelectionRange& range : rows)
    for (int row = range.top(); row <= range.bottom(); ++row) {
      const QModelIndex index = model_->index(row, 0, range.parent());
      if (!index.isValid() || model_->is_marked(index) == marked) continue;
      model_->with_item(
          index, [&](outline_item item) { call<&outline_impl::set_marked>(shown_, item, marked); });
    }
}

void outline_choice::mark_all_as_selected() {
  QItemSelection all(model_->index(0, 0), model_->index(model_->rowCount() - 1, 0));
  QItemSelection others = all;
  const QItemSelection chosen = view_->selectionModel()->selection();
  others.merge(chosen, QItemSelectionModel::Deselect);
  mark_rows(others, false);
  mark_rows(chosen, true);
}

void outline_choice::selection_changed(const QItemSelection& selected,
                                       const QItemSelection& deselected) {
  if (is_showing_) return;
  if (view_->selectionMode() != QAbstractItemView::ExtendedSelection) {
    show_marks(true);  // the one that is marked is the outline's current item
    return;
  }
  {
    QScopedValueRollback<bool> telling(is_telling_, true);
    call<&outline_impl::begin_marking>(shown_);
    if (is_long() && !knows_all_marks_) {
      mark_all_as_selected();
    } else {
      mark_rows(deselected, false);
      mark_rows(selected, true);
    }
    call<&outline_impl::end_marking>(shown_);
    knows_all_marks_ = true;
  }
  if (std::exchange(is_asked_again_, false)) {
    show_current(tracks_current_);
    show_marks(true);
  }
  Q_EMIT input_happened();
}

}  // namespace zu::desktop
