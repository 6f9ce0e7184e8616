#pragma once
// The panels of the active layer, docked at the right.

#include <QObject>
#include <QSet>
#include <QTimer>
#include <vector>

#include "host/desktop/window/document.h"
#include "zu/editors.h"

class QDockWidget;
class QMainWindow;

namespace zu::desktop {

class realised_docker;

/// Tells the services of editors which layer is active, and shows those of their panels that apply
/// to it. A panel that a person closed stays closed until they open it again.
class editor_docks final : public QObject {
  Q_OBJECT

 public:
  /// The services must outlive this.
  editor_docks(QMainWindow& window, document& shown,
               const std::vector<layer_2d_editor_extension_service>& services);
  /// Takes the panels away, and then the active layer from the services.
  ~editor_docks() override;

  const std::vector<QDockWidget*>& docks() const { return docks_; }
  /// Ids of the panels that a person closed, to be kept with the layout.
  QStringList closed() const { return closed_.values(); }
  void set_closed(const QStringList& ids);
  /// Shows the docks that apply and hides the others, whatever a kept layout said. Those in front
  /// stay in front, or come there again after a while without a layer.
  void show_wanted();

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void add_dock(const QString& id, docker panel);
  void follow_layer();
  /// Shows what applies: at once for a layer, soon for none.
  void settle();
  void show_or_hide(QDockWidget* dock);
  static realised_docker* panel_of(QDockWidget* dock);

  QMainWindow& window_;
  document& document_;
  std::vector<layer_2d_editor_extension_service> services_;
  std::vector<QDockWidget*> docks_;
  QSet<QString> closed_;
  QSet<QDockWidget*> in_front_;
  bool is_telling_ = false;
  QTimer soon_;
};

}  // namespace zu::desktop
