#pragma once
// Tools as actions of menus and tool bars.

#include <QHash>
#include <QObject>
#include <QStringList>
#include <QWidgetAction>
#include <memory>
#include <vector>

#include "host/desktop/realiser/realised.h"
#include "zu/tools.h"

class QMenu;
class QToolBar;

namespace zu::desktop {

/// The action of one tool, of whatever kind. In a tool bar a number is a box, a list drops down, a
/// tool with several actions is a button with a menu; in a menu they are entries and submenus.
class tool_action : public QWidgetAction {
  Q_OBJECT

 public:
  /// The action of a tool of any kind; null for a kind that nobody knows. A tool has but one view,
  /// so there is one action for it as long as somebody keeps it.
  static std::shared_ptr<tool_action> of_tool(const QString& id, handle tool);

  const QString& id() const { return id_; }
  /// The menus that the tool stands in, the outermost first.
  const QStringList& categories() const { return categories_; }
  /// Looks at the tool again: its texts, and what it says of itself.
  virtual void retranslate() = 0;

 protected:
  explicit tool_action(QString id) : QWidgetAction(nullptr), id_(std::move(id)) {}
  void set_categories(QStringList names) { categories_ = std::move(names); }

 private:
  QString id_;
  QStringList categories_;
};

/// The actions of tool sets, in their order, for as long as they are shown somewhere.
class tool_actions {
 public:
  void add(tool_set set);
  /// Of a tool bar or a context menu, by the handle of its own interface.
  void add_sets_of_toolbar(handle toolbar);
  void add_sets_of_context_menu(handle menu);
  void add_sets_of_service(handle service);

  /// Null if there is none.
  tool_action* action(const QString& id) const;
  const std::vector<std::vector<std::shared_ptr<tool_action>>>& sets() const { return sets_; }

  /// Puts all of them into a widget, sets parted by separators.
  void fill(QWidget* menu_or_tool_bar) const;
  /// Asks all texts anew.
  void retranslate();

 private:
  std::vector<std::vector<std::shared_ptr<tool_action>>> sets_;
};

}  // namespace zu::desktop
