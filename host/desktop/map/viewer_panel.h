#pragma once
// An embedded map: the host's side of a panel that shows a scene of the bundle's.

#include <QWidget>

#include "host/desktop/map/map_view.h"

class QFrame;
class QLabel;

namespace zu::desktop {

class viewer_panel final : public QWidget {
  Q_OBJECT

 public:
  /// The panel must outlive its widget.
  viewer_panel(of<viewer_2d_panel_impl> panel, const host::bundle* services, QWidget* parent);
  ~viewer_panel() override;

  map_view& map() { return *map_; }
  QSize sizeHint() const override;

 protected:
  void showEvent(QShowEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void show_title();

  of<viewer_2d_panel_impl> panel_;
  QLabel* title_;
  QFrame* frame_;
  map_view* map_;
  bool is_attached_ = false;
};

}  // namespace zu::desktop
