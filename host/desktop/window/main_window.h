#pragma once
// The main window.

#include <QMainWindow>

#include "host/desktop/realiser/tool_actions.h"
#include "host/desktop/window/document.h"
#include "host/desktop/window/prompts.h"
#include "host/desktop/window/scene_views.h"
#include "host/desktop/window/texts_said.h"

class QDockWidget;
class QMenu;

namespace zu::desktop {

class editor_docks;
class info_window;
class layer_list;
class status_line;
class window_actions;

class main_window final : public QMainWindow {
  Q_OBJECT

 public:
  explicit main_window(const host::bundle& services, prompts asked = prompts_of_dialogs());
  ~main_window() override;

  /// Opens what each file holds: a project (.zgp) in place of the one that is open, anything else
  /// as layers. What does not open is said above the map.
  void open_paths(const QStringList& paths);
  /// Runs the program's events until the picture on show is not older than what it shows. Gives
  /// false if that takes longer.
  bool wait_until_drawn(int milliseconds);

  document& content() { return document_; }
  window_actions& actions() { return *actions_; }
  scene_views& views() { return *views_; }
  editor_docks& editors() { return *editors_; }

 protected:
  void changeEvent(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void dragEnterEvent(QDragEnterEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // main_window.cpp
  void connect_bundles();
  void make_docks();
  void connect_files();
  void connect_map();
  void connect_layers();
  void connect_scenes();
  void connect_language();
  void connect_dialogs();
  void retranslate();
  void show_state();
  void show_view();
  void show_info(double x, double y);
  void clear_selection();
  void ask_projection();
  QDockWidget* add_dock(const char* name, Qt::DockWidgetArea area, QWidget* content);
  void restore_layout();
  void keep_layout();

  // window_files.cpp
  /// Whether what is open may go: nothing is unsaved, or a person said what becomes of it.
  bool may_replace();
  bool save();
  bool save_as();
  void open_project(const QString& path);
  void open_sources(const QStringList& sources, host::open_as wanted = host::open_as::found);
  void choose_files();
  void choose_files_as(host::open_as wanted);
  void choose_source(int index);
  void load_colors();
  void save_colors();
  void remember_file(const QString& path);
  void show_recent();
  /// Runs what may throw, and says above the map why it did not work. Gives whether it did.
  bool attempt(const std::function<void()>& work);
  QString project_name() const;

  // window_pictures.cpp
  /// What the map shows, as a page.
  host::page_request seen_page();
  void export_picture();
  void copy_picture();
  void copy_command();
  void say_in_passing(const QString& text);

  // window_menus.cpp
  void make_menus();
  void make_tool_bars();
  /// The bundles' tools, in the menu under their categories.
  void fill_tools();
  /// The modes of the current map, in their tool bar.
  void fill_modes();

  prompts prompts_;
  document document_;
  window_actions* actions_;
  scene_views* views_;
  layer_list* layers_;
  info_window* info_;
  status_line* status_;
  QDockWidget* layers_dock_ = nullptr;
  QDockWidget* info_dock_ = nullptr;
  QMenu* recent_menu_ = nullptr;
  QMenu* layer_menu_ = nullptr;
  QMenu* view_menu_ = nullptr;
  QMenu* tools_menu_ = nullptr;
  QToolBar* tools_bar_ = nullptr;
  QToolBar* modes_bar_ = nullptr;
  tool_actions tools_;
  std::unique_ptr<editor_docks> editors_;
  texts_said texts_;
  QString last_folder_;
};

}  // namespace zu::desktop
