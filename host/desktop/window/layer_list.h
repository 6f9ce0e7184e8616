#pragma once
// The layers of the active scene, the uppermost first, each with the legend of its look.

#include <QTreeWidget>

#include "host/desktop/window/document.h"

namespace zu::desktop {

/// A check box shows and hides a layer, dragging reorders. A layer that is missing or did not work
/// is marked, and its tip says why.
class layer_list : public QTreeWidget {
  Q_OBJECT

 public:
  explicit layer_list(document& shown, QWidget* parent = nullptr);
  ~layer_list() override;

  /// Place in the active scene of the layer whose row is current; -1 if none is.
  int current_index() const;
  /// Lets a person type another caption for that layer.
  void edit_current();
  /// Shows the reasons that are kept now: a picture that was drawn may have left some.
  void follow_problems();
  /// The reasons that are kept for a layer, and what else is to be said of it; empty if all is
  /// well.
  static QStringList problems_of(const host::project_layer& layer);

 Q_SIGNALS:
  void zoom_wanted(int index);
  void source_wanted(int index);

 protected:
  void changeEvent(QEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  void follow();
  void follow_active();
  void fill(QTreeWidgetItem* item, const host::project_layer& layer);
  void fill_problems(QTreeWidgetItem* item, const host::project_layer& layer);
  void fill_legend(QTreeWidgetItem* item, const host::layer& layer);
  void take_edit(QTreeWidgetItem* item);
  int index_of_row(int row) const { return topLevelItemCount() - 1 - row; }
  int index_of_item(QTreeWidgetItem* item) const;
  const host::project_layer* layer_at(int index) const;

  document& document_;
  std::vector<std::uint64_t> rows_;  // the layers' ids
  bool filling_ = false;
};

}  // namespace zu::desktop
