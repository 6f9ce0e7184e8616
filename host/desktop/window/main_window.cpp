#include "host/desktop/window/main_window.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDockWidget>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QScreen>
#include <QTabBar>
#include <QTimer>
#include <QUrl>

#include "host/core/failure.h"
#include "host/core/projections.h"
#include "host/desktop/dialogs/about_dialog.h"
#include "host/desktop/dialogs/settings_dialog.h"
#include "host/desktop/dialogs/settings_file.h"
#include "host/desktop/dialogs/shortcuts_dialog.h"
#include "host/desktop/realiser/realiser.h"
#include "host/desktop/window/editor_docks.h"
#include "host/desktop/window/info_window.h"
#include "host/desktop/window/layer_list.h"
#include "host/desktop/window/message_bar.h"
#include "host/desktop/window/start_page.h"
#include "host/desktop/window/status_line.h"
#include "host/desktop/window/window_actions.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

constexpr char geometry_name[] = "window_geometry", layout_name[] = "window_layout",
               closed_name[] = "closed_panels";
/// Docks and bars of another number are not those that a layout was kept of.
constexpr int layout_version = 1;
constexpr QSize first_size(1280, 800), frame_of_window(16, 48);
constexpr int patience = 300;  // milliseconds: a picture that takes longer is said to be drawn

/// The name of a choice in the settings, which take letters and digits alone.
QByteArray setting_of(const QString& choice) {
  QByteArray name = "choice_";
  for (QChar c : choice)
    name += c.unicode() < 128 && c.isLetterOrNumber() ? static_cast<char>(c.unicode()) : '_';
  return name;
}

/// Local files as paths, other addresses as they are.
QStringList paths_of(const QMimeData& data) {
  QStringList paths;
  const QList<QUrl> urls = data.urls();
  for (const QUrl& url : urls) paths += url.isLocalFile() ? url.toLocalFile() : url.toString();
  return paths;
}

}  // namespace

main_window::main_window(const host::bundle& services, prompts asked)
    : prompts_(std::move(asked)),
      document_(services),
      actions_(new window_actions(this)),
      views_(new scene_views(document_, this)),
      layers_(new layer_list(document_, this)),
      info_(new info_window(document_, this)),
      status_(new status_line(this)) {
  setObjectName(QStringLiteral("main_window"));
  setAcceptDrops(true);
  setDockNestingEnabled(true);
  setCentralWidget(views_);
  setStatusBar(status_);
  make_docks();
  make_menus();
  for (const auto& [name_space, service] : services.tools())
    if (name_space.ends_with(L"/tool")) tools_.add_sets_of_service(service.get());
  make_tool_bars();
  connect_files();
  connect_map();
  connect_layers();
  connect_scenes();
  connect_language();
  connect_dialogs();
  connect_bundles();
  connect(&document_, &document::history_changed, this, &main_window::show_state);
  connect(&document_, &document::layers_changed, this, &main_window::show_state);
  connect(&document_, &document::layer_activated, this, &main_window::show_state);
  status_->set_units(chosen_units());
  show_recent();
  retranslate();
  show_view();
  resize(first_size.boundedTo(screen()->availableSize() - frame_of_window));
  restore_layout();
}

main_window::~main_window() {
  set_input_listener({});
  set_choice_store({});
  document_.disconnect();
  editors_.reset();
  // What shows the document ends before it does.
  qDeleteAll(findChildren<QDockWidget*>());
  delete takeCentralWidget();
}

QDockWidget* main_window::add_dock(const char* name, Qt::DockWidgetArea area, QWidget* content) {
  auto* dock = new QDockWidget(this);
  dock->setObjectName(QString::fromLatin1(name));
  dock->setWidget(content);
  addDockWidget(area, dock);
  return dock;
}

void main_window::make_docks() {
  layers_dock_ = add_dock("dock_layers", Qt::LeftDockWidgetArea, layers_);
  info_dock_ = add_dock("dock_info", Qt::LeftDockWidgetArea, info_);
  info_dock_->hide();
  int width = fontMetrics().averageCharWidth() * 36;
  resizeDocks({layers_dock_}, {width}, Qt::Horizontal);
  texts_.say([this] { layers_dock_->setWindowTitle(words("Layers", "Слои")); });
  texts_.say([this] { info_dock_->setWindowTitle(words("Information", "Информация")); });
}

void main_window::connect_files() {
  connect(actions_->file_new, &QAction::triggered, this, [this] {
    if (!may_replace()) return;
    views_->messages().dismiss();
    document_.clear();
  });
  connect(actions_->file_open, &QAction::triggered, this, &main_window::choose_files);
  connect(actions_->open_grid, &QAction::triggered, this,
          [this] { choose_files_as(host::open_as::grid); });
  connect(actions_->open_picture, &QAction::triggered, this,
          [this] { choose_files_as(host::open_as::picture); });
  connect(actions_->file_save, &QAction::triggered, this, &main_window::save);
  connect(actions_->file_save_as, &QAction::triggered, this, &main_window::save_as);
  connect(actions_->file_quit, &QAction::triggered, this, &main_window::close);
  connect(&views_->start(), &start_page::open_wanted, this, &main_window::choose_files);
  connect(&views_->start(), &start_page::path_chosen, this,
          [this](const QString& path) { open_paths({path}); });
}

void main_window::connect_map() {
  auto map = [this]() -> map_view& { return views_->current(); };
  connect(actions_->zoom_in, &QAction::triggered, this, [map] { map().zoom_in(); });
  connect(actions_->zoom_out, &QAction::triggered, this, [map] { map().zoom_out(); });
  connect(actions_->zoom_all, &QAction::triggered, this, [map] { map().zoom_to_all(); });
  connect(actions_->zoom_back, &QAction::triggered, this, [map] { map().go_back(); });
  connect(actions_->zoom_forward, &QAction::triggered, this, [map] { map().go_forward(); });
  connect(actions_->own_axes, &QAction::triggered, this,
          [map](bool own) { map().set_own_axes(own); });
  connect(actions_->select_clear, &QAction::triggered, this, &main_window::clear_selection);
  connect(actions_->redraw, &QAction::triggered, this, [map] { map().redraw(); });
  connect(actions_->file_export, &QAction::triggered, this, &main_window::export_picture);
  connect(actions_->copy_picture, &QAction::triggered, this, &main_window::copy_picture);
  connect(actions_->copy_command, &QAction::triggered, this, &main_window::copy_command);
  connect(actions_->full_screen, &QAction::toggled, this,
          [this](bool full) { setWindowState(windowState().setFlag(Qt::WindowFullScreen, full)); });
  connect(views_, &scene_views::view_changed, this, &main_window::show_view);
  connect(views_, &scene_views::cursor_moved, status_, &status_line::show_coordinates);
  connect(views_, &scene_views::clicked, this, &main_window::show_info);
  connect(status_, &status_line::scale_chosen, this,
          [map](double scale) { map().set_map_scale(scale); });
  auto* slow = new QTimer(this);
  slow->setSingleShot(true);
  slow->setInterval(patience);
  auto started = [slow] {
    if (!slow->isActive()) slow->start();
  };
  connect(views_, &scene_views::view_changed, slow, started);
  connect(&document_, &document::picture_changed, slow, started);
  connect(slow, &QTimer::timeout, this, [this, map] {
    status_->show_busy(!document_.scene().layers.empty() && !map().is_up_to_date());
  });
  connect(views_, &scene_views::drawn, this, [this, slow] {
    slow->stop();
    status_->show_busy(false);
    layers_->follow_problems();
  });
}

void main_window::connect_layers() {
  connect(actions_->edit_undo, &QAction::triggered, &document_, &document::undo);
  connect(actions_->edit_redo, &QAction::triggered, &document_, &document::redo);
  layers_->addActions(
      {actions_->layer_rename, actions_->layer_remove, actions_->layer_up, actions_->layer_down});
  auto zoom = [this](int index) {
    if (index < 0) return;
    const host::layer* layer = document_.scene().layers.at(std::size_t(index)).shown;
    if (std::optional<Tzu_box_d2> box = layer != nullptr ? layer->box() : std::nullopt)
      views_->current().zoom_to(*box);
  };
  connect(layers_, &layer_list::zoom_wanted, this, zoom);
  connect(layers_, &layer_list::source_wanted, this, &main_window::choose_source);
  connect(layers_, &QWidget::customContextMenuRequested, this,
          [this](const QPoint& at) { layer_menu_->exec(layers_->viewport()->mapToGlobal(at)); });
  connect(layers_, &QTreeWidget::currentItemChanged, this, &main_window::show_state);
  connect(actions_->layer_zoom, &QAction::triggered, this,
          [this, zoom] { zoom(layers_->current_index()); });
  connect(actions_->layer_load_colors, &QAction::triggered, this, &main_window::load_colors);
  connect(actions_->layer_save_colors, &QAction::triggered, this, &main_window::save_colors);
  connect(actions_->layer_rename, &QAction::triggered, layers_, &layer_list::edit_current);
  connect(actions_->layer_remove, &QAction::triggered, this,
          [this] { document_.remove_layer(layers_->current_index()); });
  connect(actions_->layer_up, &QAction::triggered, this, [this] {
    int index = layers_->current_index();
    document_.move_layer(index, index + 1);
  });
  connect(actions_->layer_down, &QAction::triggered, this, [this] {
    int index = layers_->current_index();
    document_.move_layer(index, index - 1);
  });
  connect(actions_->layer_visible, &QAction::triggered, this,
          [this](bool visible) { document_.set_layer_visible(layers_->current_index(), visible); });
  connect(actions_->layer_source, &QAction::triggered, this,
          [this] { choose_source(layers_->current_index()); });
}

void main_window::connect_scenes() {
  connect(actions_->scene_add, &QAction::triggered, this, [this] { document_.add_scene({}); });
  connect(actions_->scene_remove, &QAction::triggered, this,
          [this] { document_.remove_scene(document_.active_scene()); });
  connect(actions_->scene_next, &QAction::triggered, this,
          [this] { document_.set_active_scene(document_.active_scene() + 1); });
  connect(actions_->scene_previous, &QAction::triggered, this,
          [this] { document_.set_active_scene(document_.active_scene() - 1); });
  auto rename = [this](int index) {
    if (index < 0) return;
    QString name = prompts_.name(
        this, words("Name of the scene", "Название сцены"),
        QString::fromStdString(document_.content().scenes().at(std::size_t(index)).name));
    if (!name.isEmpty()) document_.rename_scene(index, name);
  };
  connect(actions_->scene_rename, &QAction::triggered, this,
          [this, rename] { rename(document_.active_scene()); });
  connect(views_, &scene_views::tab_name_wanted, this, rename);
  connect(actions_->scene_projection, &QAction::triggered, this, &main_window::ask_projection);
  connect(status_, &status_line::projection_wanted, this, &main_window::ask_projection);
  connect(&document_, &document::scene_activated, this, &main_window::show_view);
  connect(&document_, &document::replaced, this, &main_window::show_view);
  connect(&document_, &document::picture_changed, this, &main_window::show_view);
}

void main_window::connect_language() {
  auto choose = [this](language chosen, const char* name) {
    choose_language(chosen);
    attempt([&] { keep_text("lang", QString::fromLatin1(name)); });
  };
  connect(actions_->language_english, &QAction::triggered, this,
          [choose] { choose(language::english, "en"); });
  connect(actions_->language_russian, &QAction::triggered, this,
          [choose] { choose(language::russian, "ru"); });
}

/// The panels of the active layer, and what a person does in them.
void main_window::connect_bundles() {
  std::vector<layer_2d_editor_extension_service> editors;
  for (const auto& [name_space, service] : document_.services().layer_editors())
    if (name_space.ends_with(L"/layer/2d")) editors.push_back(service.get());
  editors_ = std::make_unique<editor_docks>(*this, document_, editors);
  set_input_listener([this](const QString& what) { document_.input_happened(what); });
  set_choice_store({[](const QString& name) { return kept_text(setting_of(name).constData()); },
                    [this](const QString& name, const QString& value) {
                      attempt([&] { keep_text(setting_of(name).constData(), value); });
                    }});
  connect(views_, &scene_views::map_changed, this, &main_window::fill_modes);
  connect(actions_->info_tool, &QAction::toggled, this, [this](bool on) {
    if (on)
      views_->leave_modes();
    else if (!views_->current().modes().mode())
      views_->take_hand();
  });
  fill_modes();
}

void main_window::connect_dialogs() {
  connect(actions_->edit_settings, &QAction::triggered, this, [this] {
    if (settings_dialog::ask(this)) status_->set_units(chosen_units());
  });
  connect(actions_->help_shortcuts, &QAction::triggered, this,
          [this] { shortcuts_dialog::ask(this, actions_->findChildren<QAction*>()); });
  connect(actions_->help_about, &QAction::triggered, this, [this] { about_dialog::ask(this); });
}

void main_window::retranslate() {
  actions_->retranslate();
  texts_.say_all();
  tools_.retranslate();
  fill_modes();
  actions_->language_english->setChecked(language_in_force() == language::english);
  actions_->language_russian->setChecked(language_in_force() == language::russian);
  show_recent();
  show_state();
}

/// What applies now, and the window's title.
void main_window::show_state() {
  window_actions& a = *actions_;
  setWindowTitle(project_name() + QStringLiteral("[*] — Zugrid"));
  setWindowModified(document_.is_changed());
  a.name_steps(document_.undo_name(), document_.redo_name());
  a.edit_undo->setEnabled(document_.can_undo());
  a.edit_redo->setEnabled(document_.can_redo());
  const auto& layers = document_.scene().layers;
  int index = layers_->current_index(), count = static_cast<int>(layers.size());
  const host::layer* layer =
      index >= 0 && index < count ? layers[std::size_t(index)].shown : nullptr;
  a.layer_zoom->setEnabled(layer != nullptr && layer->box().has_value());
  a.layer_rename->setEnabled(layer != nullptr);
  a.layer_visible->setEnabled(layer != nullptr);
  a.layer_visible->setChecked(layer != nullptr && layer->is_visible());
  a.layer_source->setEnabled(layer != nullptr);
  const Tzu_stl_mngr* styles = layer != nullptr ? layer->style_manager() : nullptr;
  a.layer_load_colors->setEnabled(styles != nullptr);
  a.layer_save_colors->setEnabled(styles != nullptr);
  a.layer_remove->setEnabled(index >= 0);
  a.layer_up->setEnabled(index >= 0 && index + 1 < count);
  a.layer_down->setEnabled(index > 0);
  a.file_save->setEnabled(document_.is_changed() || document_.path().isEmpty());
  int scene = document_.active_scene();
  int scenes = static_cast<int>(document_.content().scenes().size());
  a.scene_remove->setEnabled(scenes > 1);
  a.scene_previous->setEnabled(scene > 0);
  a.scene_next->setEnabled(scene + 1 < scenes);
  for (QAction* each : {a.zoom_in, a.zoom_out, a.zoom_all, a.redraw, a.copy_picture, a.copy_command,
                        a.file_export, a.info_tool})
    each->setEnabled(count > 0);
}

void main_window::show_view() {
  map_view& map = views_->current();
  bool is_empty = document_.scene().layers.empty();
  status_->show_scale(is_empty ? 0 : map.map_scale(), map.units_a_pixel());
  status_->show_projection(QString::fromStdString(document_.scene().content->projection()));
  actions_->own_axes->setChecked(map.has_own_axes());
  actions_->zoom_back->setEnabled(!is_empty && map.can_go_back());
  actions_->zoom_forward->setEnabled(!is_empty && map.can_go_forward());
}

void main_window::clear_selection() {
  for (const auto& each : document_.scene().content->layers()) {
    Tzu_table_data* table = zu_lr_get_data_ptr(each->entity());
    if (!zu_table_data_has_selected_ids(table)) continue;
    zu_table_data_begin_update(table);
    zu_table_data_clear_selected_ids(table);
    zu_table_data_end_update(table);
  }
}

void main_window::show_info(double x, double y) {
  if (!actions_->info_tool->isChecked()) return;
  info_->show_point(x, y);
  info_dock_->show();
  info_dock_->raise();
}

void main_window::ask_projection() {
  QString now = QString::fromStdString(document_.scene().content->projection());
  std::optional<QString> chosen = prompts_.projection(this, now);
  if (!chosen || *chosen == now) return;
  attempt([&] {
    std::string why = host::why_no_projection(chosen->toStdString());
    if (!chosen->isEmpty() && !why.empty()) throw host::failure(chosen->toStdString(), why);
    document_.set_projection(*chosen);
    views_->current().zoom_to_all();
  });
}

bool main_window::wait_until_drawn(int milliseconds) {
  QElapsedTimer timer;
  timer.start();
  // A panel's layout asks the one around it, which answers a round later.
  constexpr int rounds = 5;
  for (int round = 0; round < rounds || !views_->current().is_up_to_date(); ++round) {
    if (timer.elapsed() > milliseconds) return false;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }
  return true;
}

void main_window::restore_layout() {
  auto kept = [](const char* name) { return QByteArray::fromBase64(kept_text(name).toLatin1()); };
  restoreGeometry(kept(geometry_name));
  restoreState(kept(layout_name), layout_version);
  editors_->set_closed(kept_list(closed_name));
  fill_modes();
  actions_->full_screen->setChecked(isFullScreen());
}

void main_window::keep_layout() {
  attempt([this] {
    keep_text(geometry_name, QString::fromLatin1(saveGeometry().toBase64()));
    keep_list(closed_name, editors_->closed());
    keep_text(layout_name, QString::fromLatin1(saveState(layout_version).toBase64()));
  });
}

void main_window::changeEvent(QEvent* event) {
  if (event->type() == QEvent::LanguageChange) retranslate();
  QMainWindow::changeEvent(event);
}

void main_window::closeEvent(QCloseEvent* event) {
  if (!may_replace()) return event->ignore();
  keep_layout();
  event->accept();
}

/// What no one in front took: Escape puts away the message, then leaves the full screen.
void main_window::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Escape) return QMainWindow::keyPressEvent(event);
  if (views_->messages().isVisible())
    views_->messages().dismiss();
  else
    actions_->full_screen->setChecked(false);
}

void main_window::dragEnterEvent(QDragEnterEvent* event) {
  if (event->mimeData()->hasUrls()) event->acceptProposedAction();
}

void main_window::dropEvent(QDropEvent* event) {
  event->acceptProposedAction();
  // Where the files come from waits for the answer, and opening may ask a person.
  auto* soon = new QTimer(this);
  soon->setSingleShot(true);
  connect(soon, &QTimer::timeout, this, [this, soon, paths = paths_of(*event->mimeData())] {
    soon->deleteLater();
    open_paths(paths);
  });
  soon->start(0);
}

}  // namespace zu::desktop
