#include "host/desktop/window/editor_docks.h"

#include <QDockWidget>
#include <QEvent>
#include <QMainWindow>

#include "host/desktop/realiser/docker.h"

namespace zu::desktop {
namespace {

struct kept_dockers final : docker_visitor_impl {
  void visit(const wchar_t* id, docker panel) override {
    all.emplace_back(QString::fromWCharArray(id), panel);
  }
  std::vector<std::pair<QString, docker>> all;
};

}  // namespace

editor_docks::editor_docks(QMainWindow& window, document& shown,
                           const std::vector<layer_2d_editor_extension_service>& services)
    : QObject(&window), window_(window), document_(shown), services_(services) {
  for (const layer_2d_editor_extension_service& service : services_) {
    kept_dockers found;
    call<&layer_2d_editor_extension_service_impl::get_dockers>(
        service, docker_visitor(handle_of<docker_visitor_impl>(found)));
    for (const auto& [id, panel] : found.all) add_dock(id, panel);
  }
  soon_.setSingleShot(true);
  connect(&soon_, &QTimer::timeout, this, &editor_docks::show_wanted);
  connect(&document_, &document::layer_activated, this, &editor_docks::follow_layer);
  follow_layer();
  if (!docks_.empty()) docks_.front()->raise();
}

editor_docks::~editor_docks() {
  qDeleteAll(docks_);
  for (const layer_2d_editor_extension_service& service : services_)
    call<&layer_2d_editor_extension_service_impl::layer_changed>(service,
                                                                 static_cast<Izu_layer*>(nullptr));
}

realised_docker* editor_docks::panel_of(QDockWidget* dock) {
  return static_cast<realised_docker*>(dock->widget());
}

void editor_docks::add_dock(const QString& id, docker panel) {
  auto* dock = new QDockWidget(&window_);
  dock->setObjectName(QStringLiteral("panel_") + id);
  auto* content = new realised_docker(panel, dock);
  content->set_margins(true);
  dock->setWidget(content);
  window_.addDockWidget(Qt::RightDockWidgetArea, dock);
  if (!docks_.empty()) window_.tabifyDockWidget(docks_.back(), dock);
  docks_.push_back(dock);
  auto name = [dock, content] {
    dock->setWindowTitle(content->title());
    dock->setWindowIcon(content->icon());
    dock->toggleViewAction()->setIcon(content->icon());
  };
  name();
  connect(content, &realised_docker::title_changed, dock, name);
  connect(content, &realised_docker::wanted_changed, this, &editor_docks::settle);
  connect(dock->toggleViewAction(), &QAction::triggered, this, [this, dock](bool shown) {
    if (shown)
      closed_.remove(dock->objectName());
    else
      closed_.insert(dock->objectName());
  });
  dock->installEventFilter(this);
}

bool editor_docks::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Close) closed_.insert(watched->objectName());
  return QObject::eventFilter(watched, event);
}

void editor_docks::follow_layer() {
  host::layer* active = document_.active_layer();
  is_telling_ = true;
  for (const layer_2d_editor_extension_service& service : services_)
    call<&layer_2d_editor_extension_service_impl::layer_changed>(
        service, active != nullptr ? active->entity() : nullptr);
  is_telling_ = false;
  settle();
}

void editor_docks::settle() {
  // A panel whose service has not heard of the layer yet would leave its place and come back.
  if (is_telling_) return;
  // A layer that undo changes is let go of and taken again at once: the panels would leave their
  // place, and a person theirs in them.
  if (document_.active_layer() != nullptr)
    show_wanted();
  else
    soon_.start(0);
}

void editor_docks::show_or_hide(QDockWidget* dock) {
  bool is_wanted = document_.active_layer() != nullptr && panel_of(dock)->is_wanted();
  dock->toggleViewAction()->setVisible(is_wanted);
  bool shows = is_wanted && !closed_.contains(dock->objectName());
  if (dock->isHidden() == shows) dock->setVisible(shows);
}

void editor_docks::show_wanted() {
  // Panels in tabs behind another are out of sight. Where none is in sight the last ones stay
  // known.
  QSet<QDockWidget*> in_front;
  for (QDockWidget* dock : docks_)
    if (!dock->visibleRegion().isEmpty()) in_front.insert(dock);
  if (!in_front.isEmpty()) in_front_ = in_front;
  for (QDockWidget* dock : docks_) show_or_hide(dock);
  for (QDockWidget* dock : docks_)
    if (in_front_.contains(dock) && !dock->isHidden()) dock->raise();
}

void editor_docks::set_closed(const QStringList& ids) {
  closed_ = QSet<QString>(ids.begin(), ids.end());
  show_wanted();
}

}  // namespace zu::desktop
