#pragma once
// The middle of the window: a map for each scene, tabs above them when there are several, and what
// is to be said above the map.

#include <QWidget>
#include <map>
#include <memory>

#include "host/desktop/map/map_view.h"
#include "host/desktop/realiser/tool_actions.h"
#include "host/desktop/window/document.h"

class QStackedWidget;
class QTabBar;

namespace zu::desktop {

class message_bar;
class start_page;

class scene_views final : public QWidget {
  Q_OBJECT

 public:
  explicit scene_views(document& shown, QWidget* parent = nullptr);
  ~scene_views() override;

  /// The map of the active scene.
  map_view& current();
  /// The modes that its bundle gives it; none without one.
  const tool_actions& current_modes();
  /// Puts the mode in force that moves the map, as a new map has it.
  void take_hand() { take_hand(current_modes()); }
  /// Puts no mode in force: a click is a click.
  void leave_modes();
  message_bar& messages() { return *messages_; }
  start_page& start() { return *start_; }
  QTabBar& tabs() { return *tabs_; }
  /// Tells the project what each map shows, before it is saved.
  void remember_boxes();

 Q_SIGNALS:
  void map_changed();   ///< another map became current
  void view_changed();  ///< of the current map; also when another one became current
  void cursor_moved(double x, double y, bool inside);
  void clicked(double x, double y);
  void drawn(double milliseconds);
  void tab_name_wanted(int index);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void follow_project();
  void follow_scene();
  void follow_layers();
  void name_tabs();
  /// A map, and the tools that choose its modes, which end before it.
  struct shown_map {
    std::unique_ptr<map_view> view;
    tool_actions modes;
  };
  static void take_hand(const tool_actions& modes);
  shown_map& current_map();
  shown_map make_map(host::project_scene& scene);

  document& document_;
  QTabBar* tabs_;
  message_bar* messages_;
  QStackedWidget* stack_;
  start_page* start_;
  // A new scene may come to stand where an old one stood.
  using scene_key = std::pair<const host::scene*, std::uint64_t>;
  static scene_key key_of(const host::project_scene& scene);
  std::map<scene_key, shown_map> maps_;
};

}  // namespace zu::desktop
