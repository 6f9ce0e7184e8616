#pragma once
// Layouts as widgets.

#include <QGridLayout>
#include <QGroupBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <vector>

#include "host/desktop/realiser/realised.h"

namespace zu::desktop {

/// Cells in a grid. A label in front of a control becomes its name and leads its mnemonic to it. A
/// grid in which nothing takes spare height keeps its rows together at the top.
class grid_layout_widget final : public realised<grid_layout_impl, QWidget> {
 public:
  grid_layout_widget(handle element, QWidget* parent);
  ~grid_layout_widget() override;

  /// The width that the labels of the first column want; 0 if it has none, or not labels alone.
  int label_width() const;
  /// What the grid needs at least, but for that column.
  int width_beside_labels() const;
  /// Makes the column of labels at least so wide, that controls of several grids stand in line.
  /// True if it was another width.
  bool align_labels(int width);

 protected:
  void heard(notice) override;

 private:
  struct cell {
    int column, row, columns, rows;
    QWidget* control;
  };
  void place(int column, int row);
  void name_controls();
  bool any_visible(const cell& placed) const;
  int least_width(int column) const;

  QGridLayout* grid_;
  int columns_ = 0, rows_ = 0;
  int aligned_ = 0;
  std::vector<cell> cells_;
};

class groupbox_widget final : public realised<groupbox_impl, QGroupBox> {
 public:
  groupbox_widget(handle element, QWidget* parent);
  ~groupbox_widget() override;

 protected:
  void heard(notice) override;

 private:
  void mark(bool checked);
};

class stack_layout_widget final : public realised<stack_layout_impl, QStackedWidget> {
 public:
  stack_layout_widget(handle element, QWidget* parent);
  ~stack_layout_widget() override;

 protected:
  void heard(notice) override;
};

/// Tabs that open where the person last was.
class tab_layout_widget final : public realised<tab_layout_impl, QTabWidget> {
 public:
  tab_layout_widget(handle element, QWidget* parent);
  ~tab_layout_widget() override;

 protected:
  void heard(notice) override;

 private:
  void add(const QString& id, docker page);
  void open_last();
  void chosen(int index);

  std::vector<QString> ids_;
};

}  // namespace zu::desktop
