#pragma once
// What lies at a point of the map, of every layer that has something there.

#include <QTreeWidget>

#include "host/desktop/window/document.h"

namespace zu::desktop {

/// A layer's objects with names and values; Ctrl+C copies the chosen rows, or all of them.
class info_window final : public QTreeWidget {
  Q_OBJECT

 public:
  explicit info_window(document& shown, QWidget* parent = nullptr);

  /// Asks all visible layers of the active scene, the uppermost first.
  void show_point(double x, double y);
  /// The rows as lines, names and values parted by tabs.
  QString text() const;

 protected:
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  void copy();
  void retranslate();

  document& document_;
  bool is_empty_ = true;    // what stands there is no layer's
  bool was_asked_ = false;  ///< a person has clicked since the scene came
};

}  // namespace zu::desktop
