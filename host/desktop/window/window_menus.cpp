// Menus and tool bars of the main window.

#include <QDockWidget>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "host/desktop/window/main_window.h"
#include "host/desktop/window/window_actions.h"
#include "host/desktop/words.h"

namespace zu::desktop {
namespace {

/// The menu of a title in a menu, made if there is none.
QMenu* submenu(QMenu* menu, const QString& title) {
  for (QMenu* each : menu->findChildren<QMenu*>(Qt::FindDirectChildrenOnly))
    if (each->title() == title) return each;
  return menu->addMenu(title);
}

/// Sets of tools that are all hidden leave their separators behind.
void hide_double_separators(const QToolBar& bar) {
  bool is_parted = true;
  const QList<QAction*> actions = bar.actions();
  for (QAction* each : actions) {
    if (each->isSeparator()) each->setVisible(!std::exchange(is_parted, true));
    if (!each->isSeparator() && each->isVisible()) is_parted = false;
  }
}

}  // namespace

void main_window::make_menus() {
  auto add_menu = [this](const char* name, const char* english, const char* russian,
                         QMenu* parent = nullptr) {
    QMenu* menu = parent != nullptr ? parent->addMenu(QString()) : menuBar()->addMenu(QString());
    menu->setObjectName(QString::fromLatin1(name));
    menu->setToolTipsVisible(true);
    texts_.say([=] { menu->setTitle(words(english, russian)); });
    return menu;
  };
  window_actions& a = *actions_;

  QMenu* file = add_menu("menu_file", "&File", "&Файл");
  file->addActions({a.file_new, a.file_open});
  add_menu("menu_open_as", "Open as ano&ther kind", "Открыть &другим видом", file)
      ->addActions({a.open_grid, a.open_picture});
  recent_menu_ = add_menu("menu_recent", "Open &recent", "Открыть &последние", file);
  file->addSeparator();
  file->addActions({a.file_save, a.file_save_as});
  file->addSeparator();
  file->addAction(a.file_export);
  file->addSeparator();
  file->addAction(a.file_quit);

  QMenu* edit = add_menu("menu_edit", "&Edit", "&Правка");
  edit->addActions({a.edit_undo, a.edit_redo});
  edit->addSeparator();
  edit->addActions({a.copy_picture, a.copy_command});
  edit->addSeparator();
  edit->addAction(a.select_clear);
  edit->addSeparator();
  edit->addAction(a.edit_settings);

  view_menu_ = add_menu("menu_view", "&View", "&Вид");
  view_menu_->addActions({a.zoom_in, a.zoom_out, a.zoom_all, a.layer_zoom});
  view_menu_->addSeparator();
  view_menu_->addActions({a.zoom_back, a.zoom_forward, a.own_axes, a.redraw});
  view_menu_->addSeparator();
  QMenu* panels = add_menu("menu_panels", "&Panels", "&Панели", view_menu_);
  // Panels of layers come and go, so the list is made when it opens.
  connect(panels, &QMenu::aboutToShow, this, [this, panels] {
    panels->clear();
    for (QDockWidget* dock : findChildren<QDockWidget*>())
      panels->addAction(dock->toggleViewAction());
    panels->addSeparator();
    for (QToolBar* bar : findChildren<QToolBar*>(Qt::FindDirectChildrenOnly))
      panels->addAction(bar->toggleViewAction());
  });
  QMenu* languages = add_menu("menu_language", "&Language", "&Язык", view_menu_);
  languages->addActions({a.language_english, a.language_russian});
  view_menu_->addSeparator();
  view_menu_->addAction(a.full_screen);

  layer_menu_ = add_menu("menu_layer", "&Layer", "&Слой");
  layer_menu_->addActions({a.layer_visible, a.layer_zoom, a.layer_rename, a.layer_source});
  layer_menu_->addSeparator();
  layer_menu_->addActions({a.layer_load_colors, a.layer_save_colors});
  layer_menu_->addSeparator();
  layer_menu_->addActions({a.layer_up, a.layer_down});
  layer_menu_->addSeparator();
  layer_menu_->addAction(a.layer_remove);

  QMenu* scene = add_menu("menu_scene", "&Scene", "С&цена");
  scene->addAction(a.scene_projection);
  scene->addSeparator();
  scene->addActions({a.scene_add, a.scene_rename, a.scene_remove});
  scene->addSeparator();
  scene->addActions({a.scene_previous, a.scene_next});

  tools_menu_ = add_menu("menu_tools", "&Tools", "&Инструменты");

  QMenu* help = add_menu("menu_help", "&Help", "Спр&авка");
  help->addActions({a.help_shortcuts, a.help_about});
}

void main_window::make_tool_bars() {
  auto add_bar = [this](const char* name, const char* english, const char* russian) {
    auto* bar = new QToolBar(this);
    bar->setObjectName(QString::fromLatin1(name));
    addToolBar(bar);
    texts_.say([=] { bar->setWindowTitle(words(english, russian)); });
    return bar;
  };
  window_actions& a = *actions_;
  QToolBar* file = add_bar("bar_file", "File", "Файл");
  file->addActions({a.file_new, a.file_open, a.file_save, a.file_export});
  file->addSeparator();
  file->addActions({a.edit_undo, a.edit_redo});
  QToolBar* map = add_bar("bar_map", "Map", "Карта");
  // Where a bundle has modes of zooming, their bar has these too.
  if (document_.services().viewer_extensions().empty())
    map->addActions({a.zoom_in, a.zoom_out, a.zoom_all});
  map->addActions({a.layer_zoom, a.zoom_back, a.zoom_forward});
  map->addSeparator();
  map->addAction(a.info_tool);
  modes_bar_ = add_bar("bar_modes", "Map modes", "Режимы карты");
  tools_bar_ = add_bar("bar_tools", "Tools", "Инструменты");
  tools_.fill(tools_bar_);
  tools_bar_->setVisible(!tools_.sets().empty());
  tools_bar_->toggleViewAction()->setVisible(!tools_.sets().empty());
}

void main_window::fill_tools() {
  tools_menu_->clear();
  qDeleteAll(tools_menu_->findChildren<QMenu*>(Qt::FindDirectChildrenOnly));
  tools_menu_->addAction(actions_->info_tool);
  views_->current_modes().fill(tools_menu_);
  for (const auto& set : tools_.sets()) {
    tools_menu_->addSeparator();
    for (const auto& action : set) {
      QMenu* menu = tools_menu_;
      for (const QString& category : action->categories()) menu = submenu(menu, category);
      menu->addAction(action.get());
    }
  }
}

void main_window::fill_modes() {
  fill_tools();
  modes_bar_->clear();
  const tool_actions& modes = views_->current_modes();
  modes.fill(modes_bar_);
  hide_double_separators(*modes_bar_);
  bool are_there = !modes.sets().empty();
  modes_bar_->setVisible(are_there);
  modes_bar_->toggleViewAction()->setVisible(are_there);
  // The information tool works where no mode takes the mouse.
  for (const auto& set : modes.sets())
    for (const auto& action : set) {
      connect(action.get(), &QAction::visibleChanged, modes_bar_,
              [this] { hide_double_separators(*modes_bar_); });
      connect(action.get(), &QAction::toggled, actions_->info_tool, [this](bool on) {
        if (on) actions_->info_tool->setChecked(false);
      });
    }
}

}  // namespace zu::desktop
