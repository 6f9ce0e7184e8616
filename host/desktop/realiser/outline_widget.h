#pragma once
// A list or tree with columns: the control of an outline, and of a list.

#include <memory>

#include "host/desktop/realiser/outline_choice.h"
#include "host/desktop/realiser/outline_delegate.h"
#include "host/desktop/realiser/outline_flat_view.h"
#include "host/desktop/realiser/realised.h"

class QHeaderView;
class QLabel;
class QTreeView;

namespace zu::desktop {

class outline_widget final : public realised<outline_impl, QWidget> {
  Q_OBJECT
 public:
  outline_widget(handle shown, QWidget* parent);
  ~outline_widget() override;

  QAbstractItemView* view() const { return view_; }
  outline_model* model() const { return model_; }
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void heard(notice what) override;
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void make_view();
  void connect_inputs();
  void open_columns_menu(const QPoint& at);
  QHeaderView* header() const;
  void show_look();
  void show_columns();
  void show_empty_text();
  void fit_columns();
  /// The column that takes what the others leave: the one of texts without a wish where there are
  /// wishes, or the last one of texts where no captions let a person change a width; -1 if there is
  /// no such column, or more than one.
  int spare_column() const;
  int fitting_width(int column) const;
  int fitting_row_height() const;
  void open_items(const QModelIndex& parent);
  void clicked(const QModelIndex& index);
  void activate(const QModelIndex& index);
  bool key_pressed(QKeyEvent* event);
  /// Opens the first cell of the row that can be typed into; false if there is none. A tree's keys
  /// do not lead from cell to cell.
  bool edit_in_row(const QModelIndex& row);
  void toggle_checks();
  void input_happened();
  int rows_height(int rows) const;

  outline_model* model_;
  outline_delegate* delegate_;
  QAbstractItemView* view_ = nullptr;
  flat_view* flat_ = nullptr;  // one of the two is the view
  QTreeView* tree_ = nullptr;
  QLabel* empty_text_;
  outline_choice* choice_ = nullptr;
  bool is_fitted_ = false;
};

}  // namespace zu::desktop
