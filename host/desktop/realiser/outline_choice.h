#pragma once
// The current item and the marks of an outline, kept in step with what a view shows as chosen.

#include <QObject>
#include <QScopedValueRollback>

#include "zu/outline.h"

class QAbstractItemView;
class QItemSelection;

namespace zu::desktop {

class outline_model;

/// The outline is the master. Short lists are compared whole; of long ones the items in sight, so
/// that no list is asked through for being shown.
class outline_choice final : public QObject {
  Q_OBJECT
 public:
  outline_choice(outline shown, outline_model* model, QAbstractItemView* view);

  /// Calls `change`, which changes items: what becomes of the view's choice is not a person's.
  template <class function> void while_items_change(function&& change) {
    const QScopedValueRollback<bool> showing(is_showing_, true);
    change();
  }
  /// Shows what the outline says is current and marked.
  void show();
  /// Items came into sight.
  void show_marks_in_sight();

 Q_SIGNALS:
  void input_happened();  ///< the person's choice reached the outline

 private:
  void current_changed(const QModelIndex& now);
  void selection_changed(const QItemSelection& selected, const QItemSelection& deselected);
  void show_current(bool also_none);
  void show_marks(bool whole);
  void show_marks_below(const QModelIndex& parent, int first, int last);
  void mark_rows(const QItemSelection& rows, bool marked);
  void mark_all_as_selected();
  bool is_long() const;
  std::pair<int, int> rows_in_sight() const;

  const outline shown_;
  outline_model* const model_;
  QAbstractItemView* const view_;
  bool is_showing_ = false;       // what the view hears now comes from the outline
  bool is_telling_ = false;       // what the outline says now answers the person's choice
  bool is_asked_again_ = false;   // it has said something meanwhile
  bool tracks_current_ = true;    // the outline remembers what was made current
  bool knows_all_marks_ = false;  // the view's choice and the outline's marks are the same
};

}  // namespace zu::desktop
