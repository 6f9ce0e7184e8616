#include "host/desktop/window/scene_views.h"

#include <QApplication>
#include <QEvent>
#include <QSignalBlocker>
#include <QStackedWidget>
#include <QTabBar>
#include <QVBoxLayout>

#include "host/desktop/window/message_bar.h"
#include "host/desktop/window/start_page.h"
#include "host/desktop/words.h"

namespace zu::desktop {

scene_views::scene_views(document& shown, QWidget* parent)
    : QWidget(parent),
      document_(shown),
      tabs_(new QTabBar(this)),
      messages_(new message_bar(this)),
      stack_(new QStackedWidget(this)),
      start_(new start_page(this)) {
  setObjectName(QStringLiteral("scene_views"));
  tabs_->setObjectName(QStringLiteral("scene_tabs"));
  tabs_->setDocumentMode(true);
  tabs_->setExpanding(false);
  tabs_->setTabsClosable(true);
  tabs_->setUsesScrollButtons(true);
  stack_->addWidget(start_);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(tabs_);
  column->addWidget(messages_);
  column->addWidget(stack_, 1);

  connect(tabs_, &QTabBar::currentChanged, this, [this](int index) {
    if (index >= 0) document_.set_active_scene(index);
  });
  connect(tabs_, &QTabBar::tabCloseRequested, this,
          [this](int index) { document_.remove_scene(index); });
  connect(tabs_, &QTabBar::tabBarDoubleClicked, this, &scene_views::tab_name_wanted);
  connect(&document_, &document::replaced, this, &scene_views::follow_project);
  connect(&document_, &document::scene_activated, this, &scene_views::follow_scene);
  connect(&document_, &document::layers_changed, this, &scene_views::follow_layers);
  connect(&document_, &document::picture_changed, this, [this] { current().redraw(); });
  follow_project();
}

scene_views::~scene_views() = default;

void scene_views::take_hand(const tool_actions& modes) {
  tool_action* hand = modes.action(QStringLiteral("zu_common_plugin_viewer2d_panel_tool_zoom_pan"));
  if (hand != nullptr && !hand->isChecked()) hand->trigger();
}

void scene_views::leave_modes() {
  call<&viewer_extension_impl::set_current_mode>(current().modes().extension(),
                                                 viewer_extension_mode());
}

scene_views::shown_map scene_views::make_map(host::project_scene& scene) {
  shown_map made{std::make_unique<map_view>(*scene.content, this), {}};
  map_view* view = made.view.get();
  if (scene.view) view->zoom_to(*scene.view);
  connect(view, &map_view::view_changed, this, [this, view] {
    if (view == &current()) Q_EMIT view_changed();
  });
  connect(view, &map_view::cursor_moved, this, &scene_views::cursor_moved);
  connect(view, &map_view::clicked, this, &scene_views::clicked);
  connect(view, &map_view::drawn, this, &scene_views::drawn);
  const auto& extensions = document_.services().viewer_extensions();
  if (!extensions.empty())
    made.modes.add_sets_of_toolbar(view->use_extension(extensions.front().service.get()));
  stack_->addWidget(view);
  return made;
}

scene_views::scene_key scene_views::key_of(const host::project_scene& scene) {
  return {scene.content.get(), scene.id};
}

scene_views::shown_map& scene_views::current_map() {
  auto found = maps_.find(key_of(document_.scene()));
  if (found == maps_.end()) {
    found = maps_.emplace(key_of(document_.scene()), make_map(document_.scene())).first;
    // A tool is heard of like a person's input, so the map must be found by then.
    take_hand(found->second.modes);
  }
  return found->second;
}

map_view& scene_views::current() { return *current_map().view; }
const tool_actions& scene_views::current_modes() { return current_map().modes; }

void scene_views::follow_project() {
  std::map<scene_key, shown_map> kept;
  auto& scenes = document_.content().scenes();
  for (const host::project_scene& each : scenes)
    if (auto found = maps_.extract(key_of(each))) kept.insert(std::move(found));
  std::swap(maps_, kept);
  {
    QSignalBlocker quiet(tabs_);
    while (tabs_->count() > 0) tabs_->removeTab(0);
    for (std::size_t i = 0; i < scenes.size(); ++i) tabs_->addTab(QString());
    name_tabs();
  }
  tabs_->setVisible(scenes.size() > 1);
  follow_scene();
}

void scene_views::name_tabs() {
  auto& scenes = document_.content().scenes();
  for (int i = 0; i < tabs_->count(); ++i) {
    QString name = QString::fromStdString(scenes[std::size_t(i)].name);
    if (name.isEmpty()) name = words("Scene %1", "Сцена %1").arg(i + 1);
    tabs_->setTabText(i, name.replace(QLatin1Char('&'), QStringLiteral("&&")));
  }
}

void scene_views::follow_scene() {
  {
    QSignalBlocker quiet(tabs_);
    tabs_->setCurrentIndex(document_.active_scene());
  }
  follow_layers();
  Q_EMIT map_changed();
  Q_EMIT view_changed();
}

void scene_views::follow_layers() {
  map_view& view = current();
  bool is_empty = document_.scene().layers.empty();
  QWidget* front = is_empty ? static_cast<QWidget*>(start_) : &view;
  if (front == stack_->currentWidget()) return;
  // A person who opened a file goes on in the map.
  bool has_focus = stack_->currentWidget()->isAncestorOf(QApplication::focusWidget());
  stack_->setCurrentWidget(front);
  if (has_focus) front->setFocus();
}

void scene_views::remember_boxes() {
  for (host::project_scene& each : document_.content().scenes())
    if (auto found = maps_.find(key_of(each)); found != maps_.end())
      if (std::optional<Tzu_box_d2> box = found->second.view->box()) each.view = box;
}

void scene_views::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) {
    name_tabs();
    for (auto& [key, each] : maps_) each.modes.retranslate();
  }
  QWidget::changeEvent(event);
}

}  // namespace zu::desktop
